// A small launcher menu in all its three layers, in a registry of the test's own.
#pragma once

#include "tests/support/RegistrySandbox.h"

#include <string>

// Where the layers are; written by hand, so that a wrong path in the code is noticed.
constexpr const wchar_t* kProductMenu = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root";
constexpr const wchar_t* kSharedMenu = L"SOFTWARE\\Orvane\\Shared\\Tav Menu\\1.0";
constexpr const wchar_t* kCustomMenu = L"SOFTWARE\\Orvane\\Shared\\Tav Menu\\Customize";

// The menu, as Customize Menu shows it (+ on, - off, no mark: no box):
//
//     Tav Menu
//       + Programs            takes items
//         + Games             takes items; a grid
//           + Chess
//           + Solitaire
//         + Calendar          in the shared layer, too
//         - Notes             switched off in the customisation layer
//         + Maps              a user link
//         Settings            its children are not loaded
//       - Tools               takes no items; switched off by the product
//         + Alarm
//         + Backup
//       + My Menu             a user menu
//         + Radio             a user link
//       + Messaging           in the shared layer only
class CMenuSandbox : public CRegistrySandbox
{
public:
    CMenuSandbox();

    // A menu item of the product's layer, `path` below the root: "Programs\\Games".
    void AddProduct(const std::wstring& path, const wchar_t* text, DWORD index);
    // A user menu in the customisation layer; `path` ends in its key name.
    void AddUserMenu(const std::wstring& path, const wchar_t* text, DWORD index);
    // A user link in the customisation layer.
    void AddUserLink(const std::wstring& path, const wchar_t* text, DWORD index,
                     const wchar_t* file);

    // One value of an item's key in the customisation layer.
    DWORD CustomDword(const std::wstring& path, const wchar_t* name,
                      DWORD absent = 0xDEADBEEF) const;
    std::wstring CustomText(const std::wstring& path, const wchar_t* name) const;
    bool CustomExists(const std::wstring& path, const wchar_t* name) const;
    void SetCustom(const std::wstring& path, const wchar_t* name, DWORD value);
    // The whole customisation layer.
    std::wstring CustomDump() const { return Dump(kCustomMenu); }
};
