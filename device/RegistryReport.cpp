#include "device/RegistryReport.h"

#include "platform/Win.h"

#include <set>

#include "device/MenuReport.h"
#include "device/NowReport.h"
#include "device/PinReport.h"

namespace report
{
namespace
{

using Lines = std::vector<std::wstring>;

std::wstring PlainChange(const std::wstring& path, const std::wstring& name,
                         const RegistryValue* was, const RegistryValue* now)
{
    return L"key " + path + L", value \"" + name + L"\": was " +
           (was ? ValueInWords(*was) : L"absent") + L", now " +
           (now ? ValueInWords(*now) : L"absent");
}

const RegistryValue* Find(const RegistryValues& values, const std::wstring& name)
{
    const auto value = values.find(name);
    return value == values.end() ? nullptr : &value->second;
}

bool Same(const RegistryValue* left, const RegistryValue* right)
{
    return left == right || (left && right && *left == *right);
}

// The two states, and the words of those who know what their keys mean.
class CComparison
{
public:
    CComparison(const RegistrySnapshot& before, const RegistrySnapshot& after)
        : m_before(before), m_after(after), m_menu(before, after)
    {
    }

    // Everything about one key.
    void Describe(const std::wstring& path, Lines& lines) const
    {
        if (IsPinList(path))
        {
            const Lines pins = DescribePins(m_before, m_after);
            lines.insert(lines.end(), pins.begin(), pins.end());
            if (!pins.empty())
                return;
        }
        const auto was = m_before.find(path);
        const auto now = m_after.find(path);
        if (was == m_before.end())
            DescribeKey(path, now->second, true, lines);
        else if (now == m_after.end())
            DescribeKey(path, was->second, false, lines);
        else
            DescribeValues(path, was->second, now->second, lines);
    }

private:
    std::wstring SpecialWords(const std::wstring& path, const std::wstring& name,
                              const RegistryValue* was, const RegistryValue* now) const
    {
        return CMenuReport::Covers(path) ? m_menu.ValueChanged(path, name, was, now)
                                         : NowValueChanged(m_after, path, name, was, now);
    }

    std::wstring SpecialWords(const std::wstring& path, bool appeared) const
    {
        if (CMenuReport::Covers(path))
            return appeared ? m_menu.KeyAppeared(path) : m_menu.KeyVanished(path);
        return appeared ? std::wstring() : NowKeyVanished(m_before, path);
    }

    // The values of one key that differ, each in a sentence.
    void DescribeValues(const std::wstring& path, const RegistryValues& was,
                        const RegistryValues& now, Lines& lines) const
    {
        std::set<std::wstring, CaseFreeLess> names;
        for (const auto& value : was)
            names.insert(value.first);
        for (const auto& value : now)
            names.insert(value.first);
        for (const std::wstring& name : names)
        {
            const RegistryValue* before = Find(was, name);
            const RegistryValue* after = Find(now, name);
            if (Same(before, after))
                continue;
            const std::wstring sentence = SpecialWords(path, name, before, after);
            lines.push_back(sentence.empty() ? PlainChange(path, name, before, after) : sentence);
        }
    }

    // A key that only one side has.
    void DescribeKey(const std::wstring& path, const RegistryValues& values, bool appeared,
                     Lines& lines) const
    {
        const std::wstring sentence = SpecialWords(path, appeared);
        if (!sentence.empty())
        {
            lines.push_back(sentence);
            return;
        }
        if (!appeared || values.empty())
            lines.push_back(L"key " + path + (appeared ? L" was created" : L" was deleted"));
        if (appeared)
            DescribeValues(path, {}, values, lines);
    }

    const RegistrySnapshot& m_before;
    const RegistrySnapshot& m_after;
    CMenuReport m_menu;
};

} // namespace

std::wstring ValueInWords(const RegistryValue& value)
{
    if (value.Type == REG_DWORD && value.Data.size() == 4)
        return std::to_wstring(NumberOf(&value, 0));
    if (value.Type == REG_SZ)
        return L"\"" + TextOf(&value) + L"\"";
    constexpr size_t kMostBytes = 16;
    constexpr const wchar_t* kDigits = L"0123456789ABCDEF";
    std::wstring words = std::to_wstring(value.Data.size()) + L" bytes";
    for (size_t i = 0; i < value.Data.size() && i < kMostBytes; ++i)
    {
        words += i == 0 ? L": " : L" ";
        words += kDigits[value.Data[i] >> 4];
        words += kDigits[value.Data[i] & 15];
    }
    return value.Data.size() > kMostBytes ? words + L" ..." : words;
}

std::vector<std::wstring> DescribeChanges(const RegistrySnapshot& before,
                                          const RegistrySnapshot& after)
{
    const CComparison comparison(before, after);
    std::set<std::wstring, CaseFreeLess> paths;
    for (const auto& key : before)
        paths.insert(key.first);
    for (const auto& key : after)
        paths.insert(key.first);
    Lines lines;
    for (const std::wstring& path : paths)
        comparison.Describe(path, lines);
    return lines;
}

} // namespace report
