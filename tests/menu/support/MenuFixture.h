// What the menu tests share: a registry of their own with short names for its layers, and a way to
// compare whole trees at a glance.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "frame/TavException.h"
#include "menu/MenuItem.h"
#include "menu/MenuTree.h"
#include "tests/support/RegistrySandbox.h"

// HKEY_LOCAL_MACHINE is empty at the start of each test.
class MenuTest : public testing::Test
{
protected:
    // Links are removed as such, they may lead back to where they stand.
    ~MenuTest() override;

    // Paths of keys in the three layers; `below` is empty or begins with a backslash.
    static std::wstring Product(const std::wstring& below);
    static std::wstring Shared(const std::wstring& below);
    static std::wstring Custom(const std::wstring& below);
    static std::wstring RatingsKey(const std::wstring& name);

    void SetDword(const std::wstring& path, const wchar_t* name, DWORD value);
    void SetText(const std::wstring& path, const wchar_t* name, const std::wstring& text);
    void CreateKey(const std::wstring& path);
    DWORD Dword(const std::wstring& path, const wchar_t* name) const;
    std::wstring Text(const std::wstring& path, const wchar_t* name) const;
    // The whole state of the registry.
    std::wstring Dump() const;

    // A menu in the product's layer with a position.
    void AddProductMenu(const std::wstring& below, const std::wstring& text, DWORD index);
    // An item that the user has added.
    void AddUserItem(const std::wstring& below, const std::wstring& text, DWORD index);

    CRegistrySandbox m_hive;
};

// Loads the menu.
CMenuTree LoadedTree(bool includeSettings = false);

// The item of that text, which must be the only one; fails the running test when there is none.
CMenuItemPtr ItemOf(const CMenuTree& tree, const std::wstring& text);

// The children's texts in order, separated by blanks.
std::wstring ChildTexts(const CMenuItemPtr& item);

// Every item as a line "indentation, key path, text, index, hidden".
std::wstring Describe(const CMenuItemPtr& item);

// Those of the lines that begin with `front`.
std::wstring LinesWith(const std::wstring& front, const std::wstring& lines);

// The code of the CTavException that `operation` throws, S_OK when it throws none.
template <class Operation>
HRESULT CodeThrownBy(Operation&& operation)
{
    try
    {
        operation();
    }
    catch (const CTavException& exception)
    {
        return exception.Code();
    }
    return S_OK;
}
