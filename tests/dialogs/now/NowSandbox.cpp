#include "tests/dialogs/now/NowSandbox.h"

#include "platform/os/Registry.h"
#include "tests/support/KeyName.h"

#include <gtest/gtest.h>

namespace
{

std::wstring PathOf(const std::wstring& plugin)
{
    return std::wstring(kNowKey) + L"\\" + plugin;
}

} // namespace

void CNowSandbox::Add(const std::wstring& plugin, const std::wstring& text, DWORD kind)
{
    Set(plugin, L"Text", text);
    Set(plugin, L"Kind", kind);
}

void CNowSandbox::Add(const std::wstring& plugin, const std::wstring& text, DWORD kind,
                      DWORD inactive)
{
    Add(plugin, text, kind);
    Set(plugin, L"Inactive", inactive);
}

void CNowSandbox::AddMany(int count, const std::wstring& text)
{
    for (int i = 0; i < count; ++i)
    {
        wchar_t number[16];
        swprintf(number, 16, L"%05d", i);
        Add(std::wstring(L"P") + number, text + number, static_cast<DWORD>(i % 4));
    }
}

void CNowSandbox::Set(const std::wstring& plugin, const wchar_t* name, DWORD value)
{
    SetDword(PathOf(plugin).c_str(), name, value);
}

void CNowSandbox::Set(const std::wstring& plugin, const wchar_t* name, const std::wstring& text)
{
    SetText(PathOf(plugin).c_str(), name, text);
}

void CNowSandbox::SetBytes(const std::wstring& plugin, const wchar_t* name, DWORD type,
                           const std::string& data)
{
    SetRaw(PathOf(plugin).c_str(), name, type, data.data(), static_cast<DWORD>(data.size()));
}

void CNowSandbox::AddLink(const std::wstring& plugin, const std::wstring& target)
{
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, os::OpenKey(HKEY_LOCAL_MACHINE, target.c_str(), 0, &key));
    const std::wstring systemPath = SystemPathOf(key);
    os::CloseKey(key);
    ASSERT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(HKEY_LOCAL_MACHINE, PathOf(plugin).c_str(), 0, nullptr,
                              REG_OPTION_CREATE_LINK, KEY_ALL_ACCESS, nullptr, &key, nullptr));
    EXPECT_EQ(ERROR_SUCCESS,
              RegSetValueExW(key, L"SymbolicLinkValue", 0, REG_LINK,
                             reinterpret_cast<const BYTE*>(systemPath.c_str()),
                             static_cast<DWORD>(systemPath.size() * sizeof(wchar_t))));
    RegCloseKey(key);
}

bool CNowSandbox::Exists(const std::wstring& plugin) const
{
    return KeyExists(PathOf(plugin).c_str());
}

bool CNowSandbox::HasInactive(const std::wstring& plugin) const
{
    return ValueExists(PathOf(plugin).c_str(), L"Inactive");
}

DWORD CNowSandbox::Inactive(const std::wstring& plugin) const
{
    return Dword(PathOf(plugin).c_str(), L"Inactive");
}
