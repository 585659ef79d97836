#include "device/help/Browser.h"

#include "platform/Win.h"

#include <shlwapi.h>

#include <vector>

#include "platform/Handles.h"
#include "platform/os/Text.h"

namespace help
{
namespace
{

constexpr DWORD kLongest = 2084;

std::wstring Ask(ASSOCSTR what, const wchar_t* kind)
{
    wchar_t text[kLongest] = {};
    DWORD size = kLongest;
    const HRESULT result = AssocQueryStringW(ASSOCF_NONE, what, kind, L"open", text, &size);
    return result == S_OK ? std::wstring(text) : std::wstring();
}

bool IsOnWine()
{
    const HMODULE kernel = GetModuleHandleW(L"ntdll.dll");
    return kernel && GetProcAddress(kernel, "wine_get_version");
}

bool IsUnreserved(wchar_t unit)
{
    return (unit >= L'a' && unit <= L'z') || (unit >= L'A' && unit <= L'Z') ||
           (unit >= L'0' && unit <= L'9') || unit == L'_' || unit == L'-' || unit == L'.';
}

// A topic as a part of an address: UTF-8, with everything unusual as %XX.
std::wstring Escaped(const std::wstring& text)
{
    char bytes[kLongest];
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes,
                            static_cast<int>(sizeof(bytes)), nullptr, nullptr);
    constexpr const wchar_t* kDigits = L"0123456789ABCDEF";
    std::wstring escaped;
    for (int i = 0; i < length; ++i)
    {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (IsUnreserved(byte))
            escaped += static_cast<wchar_t>(byte);
        else
            escaped += {L'%', kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return escaped;
}

} // namespace

bool IsBrowser(const std::wstring& program, bool isWine)
{
    const std::wstring name = program.substr(program.find_last_of(L'\\') + 1);
    if (name.empty() || os::EqualNoCase(name, L"OpenWith.exe"))
        return false;
    return !isWine ||
           (!os::EqualNoCase(name, L"winebrowser.exe") && !os::EqualNoCase(name, L"iexplore.exe"));
}

Browser FindBrowser()
{
    for (const wchar_t* kind : {L"http", L".htm"})
    {
        Browser found = {Ask(ASSOCSTR_EXECUTABLE, kind), Ask(ASSOCSTR_COMMAND, kind)};
        const bool exists = GetFileAttributesW(found.Program.c_str()) != INVALID_FILE_ATTRIBUTES;
        if (exists && !found.Command.empty() && IsBrowser(found.Program, IsOnWine()))
            return found;
    }
    return {};
}

std::wstring AddressOf(const std::wstring& path, const std::wstring& topic)
{
    // A path without a drive, as on the handheld, is one on the current drive.
    wchar_t full[MAX_PATH] = {};
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    wchar_t address[kLongest] = {};
    DWORD size = kLongest;
    if (length == 0 || length >= MAX_PATH || FAILED(UrlCreateFromPathW(full, address, &size, 0)))
        return {};
    // It leaves the mark of a topic in a file's name as it is.
    std::wstring text = address;
    for (size_t at = text.find(L'#'); at != std::wstring::npos; at = text.find(L'#', at))
        text.replace(at, 1, L"%23");
    return text + L"#" + Escaped(topic);
}

std::wstring CommandFor(const Browser& browser, const std::wstring& address)
{
    std::wstring command = browser.Command;
    const size_t place = command.find(L"%1");
    if (place != std::wstring::npos)
        return command.replace(place, 2, address);
    return command + L" \"" + address + L"\"";
}

bool OpenInBrowser(const Browser& browser, const std::wstring& address)
{
    if (browser.Program.empty() || address.empty())
        return false;
    const std::wstring command = CommandFor(browser, address);
    // The system may write into the command line that it is given.
    std::vector<wchar_t> line(command.begin(), command.end());
    line.push_back(L'\0');
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(browser.Program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &process))
        return false;
    const UniqueKernelHandle processHandle(process.hProcess);
    const UniqueKernelHandle threadHandle(process.hThread);
    return true;
}

} // namespace help
