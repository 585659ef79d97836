#include "tests/support/MenuSandbox.h"

namespace
{

std::wstring Below(const wchar_t* root, const std::wstring& path)
{
    return path.empty() ? root : std::wstring(root) + L"\\" + path;
}

} // namespace

CMenuSandbox::CMenuSandbox()
{
    CreateKey(kProductMenu);
    AddProduct(L"Programs", L"Programs", 0);
    SetDword(Below(kProductMenu, L"Programs").c_str(), L"Add", 1);
    AddProduct(L"Programs\\Games", L"Games", 0);
    SetDword(Below(kProductMenu, L"Programs\\Games").c_str(), L"Add", 1);
    SetText(Below(kProductMenu, L"Programs\\Games").c_str(), L"DrawType", L"Grid");
    AddProduct(L"Programs\\Games\\Chess", L"Chess", 0);
    AddProduct(L"Programs\\Games\\Solitaire", L"Solitaire", 1);
    AddProduct(L"Programs\\Calendar", L"Calendar", 1);
    AddProduct(L"Programs\\Notes", L"Notes", 2);
    AddProduct(L"Settings", L"Settings", 1);
    AddProduct(L"Settings\\Clock", L"Clock", 0);
    AddProduct(L"Tools", L"Tools", 2);
    SetDword(Below(kProductMenu, L"Tools").c_str(), L"Inactive", 1);
    AddProduct(L"Tools\\Alarm", L"Alarm", 0);
    AddProduct(L"Tools\\Backup", L"Backup", 1);

    SetText(Below(kSharedMenu, L"Programs\\Calendar").c_str(), L"Text", L"Other Calendar");
    SetText(Below(kSharedMenu, L"Messaging").c_str(), L"Text", L"Messaging");

    SetDword(kCustomMenu, L"LastKey", 3);
    SetCustom(L"Programs\\Notes", L"Inactive", 1);
    AddUserLink(L"Programs\\User 3", L"Maps", 3, L"\\Program Files\\maps.exe");
    AddUserMenu(L"User 1", L"My Menu", 3);
    AddUserLink(L"User 1\\User 2", L"Radio", 0, L"\\Windows\\radio.exe");
}

void CMenuSandbox::AddProduct(const std::wstring& path, const wchar_t* text, DWORD index)
{
    SetText(Below(kProductMenu, path).c_str(), L"Text", text);
    SetDword(Below(kProductMenu, path).c_str(), L"Index", index);
}

void CMenuSandbox::AddUserMenu(const std::wstring& path, const wchar_t* text, DWORD index)
{
    SetText(Below(kCustomMenu, path).c_str(), L"Text", text);
    SetCustom(path, L"Index", index);
    SetCustom(path, L"User", 1);
}

void CMenuSandbox::AddUserLink(const std::wstring& path, const wchar_t* text, DWORD index,
                               const wchar_t* file)
{
    AddUserMenu(path, text, index);
    SetText(Below(kCustomMenu, path).c_str(), L"File", file);
    SetText(Below(kCustomMenu, path).c_str(), L"ImagePath", file);
}

DWORD CMenuSandbox::CustomDword(const std::wstring& path, const wchar_t* name, DWORD absent) const
{
    return Dword(Below(kCustomMenu, path).c_str(), name, absent);
}

std::wstring CMenuSandbox::CustomText(const std::wstring& path, const wchar_t* name) const
{
    return Text(Below(kCustomMenu, path).c_str(), name);
}

bool CMenuSandbox::CustomExists(const std::wstring& path, const wchar_t* name) const
{
    return ValueExists(Below(kCustomMenu, path).c_str(), name);
}

void CMenuSandbox::SetCustom(const std::wstring& path, const wchar_t* name, DWORD value)
{
    SetDword(Below(kCustomMenu, path).c_str(), name, value);
}
