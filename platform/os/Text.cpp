#include "platform/os/Text.h"

#include "platform/Win.h"

#include <algorithm>
#include <array>

namespace os
{
namespace
{

// One entry per code unit; made once, since a system call per character would cost far more.
class CFoldTable
{
public:
    CFoldTable()
    {
        for (size_t i = 0; i < m_lower.size(); ++i)
            m_lower[i] = static_cast<wchar_t>(i);
        CharLowerBuffW(m_lower.data(), static_cast<DWORD>(m_lower.size()));
    }
    wchar_t operator[](wchar_t unit) const { return m_lower[unit]; }
    const wchar_t* Data() const { return m_lower.data(); }

private:
    std::array<wchar_t, 0x10000> m_lower;
};

const CFoldTable& Table()
{
    static const CFoldTable table;
    return table;
}

} // namespace

wchar_t FoldCase(wchar_t unit)
{
    return Table()[unit];
}

const wchar_t* FoldTable()
{
    return Table().Data();
}

std::wstring FoldCase(std::wstring_view text)
{
    const CFoldTable& table = Table();
    std::wstring folded(text);
    for (wchar_t& unit : folded)
        unit = table[unit];
    return folded;
}

int CompareNoCase(std::wstring_view left, std::wstring_view right)
{
    const CFoldTable& table = Table();
    const size_t common = std::min(left.size(), right.size());
    for (size_t i = 0; i < common; ++i)
    {
        const int difference = table[left[i]] - table[right[i]];
        if (difference != 0)
            return difference;
    }
    if (left.size() == right.size())
        return 0;
    return left.size() < right.size() ? -1 : 1;
}

} // namespace os
