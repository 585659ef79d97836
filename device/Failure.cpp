#include "device/Failure.h"

#include <exception>

#include "frame/TavException.h"

namespace failure
{
namespace
{

std::wstring Hex(uint32_t code)
{
    constexpr const wchar_t* kDigits = L"0123456789ABCDEF";
    std::wstring text = L"0x";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += kDigits[(code >> shift) & 15];
    return text;
}

} // namespace

std::wstring DescribeCurrent()
{
    try
    {
        throw;
    }
    catch (const CTavException& failed)
    {
        return L"The dialog reported error " + Hex(static_cast<uint32_t>(failed.Code())) + L".";
    }
    catch (const std::exception& failed)
    {
        const std::string what = failed.what();
        return L"The dialog failed: " + std::wstring(what.begin(), what.end()) + L".";
    }
    catch (...)
    {
        return L"The dialog failed for an unknown reason.";
    }
}

void Show(HWND owner, const std::wstring& sentence)
{
    MessageBoxW(owner, sentence.c_str(), L"Tav Lumenar", MB_OK | MB_ICONWARNING);
}

} // namespace failure
