// Templates, menus and strings by the numbers that hosts and translations rely on.
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/SoftKeys.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

constexpr UINT kPopup = static_cast<UINT>(-1);

class Resources : public testing::Test
{
protected:
    Resources()
    {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&classes);
    }
    ~Resources() override
    {
        if (m_dialog)
            DestroyWindow(m_dialog);
    }

    static INT_PTR CALLBACK HandleNothing(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    // The template, shown by nobody in particular.
    HWND Create(UINT id)
    {
        m_dialog =
            CreateDialogParamW(module.Handle(), MAKEINTRESOURCEW(id), nullptr, HandleNothing, 0);
        EXPECT_NE(nullptr, m_dialog);
        return m_dialog;
    }

    // The classes that dialogs of the shell may use beside the system's.
    void RegisterExtraControls()
    {
        const FARPROC call =
            GetProcAddress(GetModuleHandleW(L"aygshell.dll"), "SHInitExtraControls");
        ASSERT_NE(nullptr, call);
        call();
    }

    std::wstring String(UINT id)
    {
        wchar_t text[200] = {};
        LoadStringW(module.Handle(), id, text, 200);
        return text;
    }

    CRegistrySandbox registry;
    CModule module;

private:
    HWND m_dialog = nullptr;
};

struct ExpectedControl
{
    int id;
    const wchar_t* className;
    const wchar_t* text;
    DWORD set;
    DWORD clear;
};

void ExpectControls(HWND dialog, const std::vector<ExpectedControl>& expected)
{
    HWND control = GetWindow(dialog, GW_CHILD);
    for (const ExpectedControl& entry : expected)
    {
        ASSERT_NE(nullptr, control) << entry.id;
        wchar_t name[100] = {};
        GetClassNameW(control, name, 100);
        const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
        EXPECT_EQ(entry.id, GetDlgCtrlID(control));
        EXPECT_STREQ(entry.className, name) << entry.id;
        EXPECT_EQ(entry.text, TextOf(control)) << entry.id;
        EXPECT_EQ(entry.set, style & entry.set) << entry.id;
        EXPECT_EQ(0u, style & entry.clear) << entry.id;
        control = GetWindow(control, GW_HWNDNEXT);
    }
    EXPECT_EQ(nullptr, control) << "a control too many";
}

struct ExpectedEntry
{
    UINT id;
    const wchar_t* text;
};

void ExpectMenu(HMENU menu, const std::vector<ExpectedEntry>& expected)
{
    ASSERT_EQ(static_cast<int>(expected.size()), GetMenuItemCount(menu));
    for (UINT i = 0; i < expected.size(); ++i)
    {
        EXPECT_EQ(expected[i].id, GetMenuItemID(menu, static_cast<int>(i)));
        EXPECT_EQ(expected[i].text, MenuText(menu, i));
    }
}

} // namespace

TEST_F(Resources, Template9IsCustomizeMenuWithItsTree)
{
    const HWND dialog = Create(9);
    EXPECT_EQ(L"Customize Menu", TextOf(dialog));
    ExpectControls(dialog, {{203, L"SysTreeView32", L"", WS_TABSTOP | WS_VISIBLE | TVS_HASBUTTONS,
                             TVS_CHECKBOXES}});
}

TEST_F(Resources, Template202IsEditItemOfALink)
{
    const HWND dialog = Create(202);
    EXPECT_EQ(L"Edit Item", TextOf(dialog));
    // The name comes first: it gets the focus.
    ExpectControls(dialog, {{206, L"Edit", L"", WS_VISIBLE | ES_AUTOHSCROLL | WS_TABSTOP,
                             ES_MULTILINE | ES_READONLY | ES_PASSWORD | ES_NUMBER},
                            {216, L"Static", L"Name:", WS_VISIBLE | WS_GROUP, 0},
                            {207, L"Edit", L"",
                             WS_VISIBLE | ES_AUTOHSCROLL | ES_READONLY | WS_TABSTOP, ES_MULTILINE},
                            {217, L"Static", L"Path:", WS_VISIBLE | WS_GROUP, 0},
                            {218, L"Static", L"Icon:", WS_VISIBLE | WS_GROUP, 0},
                            {208, L"Static", L"", WS_VISIBLE, WS_TABSTOP | WS_BORDER},
                            {209, L"Button", L"Change...", WS_VISIBLE | WS_TABSTOP, 0x0F}});
}

TEST_F(Resources, Template204IsEditItemOfAMenu)
{
    const HWND dialog = Create(204);
    EXPECT_EQ(L"Edit Item", TextOf(dialog));
    ExpectControls(dialog, {{206, L"Edit", L"", WS_VISIBLE | ES_AUTOHSCROLL | WS_TABSTOP,
                             ES_MULTILINE | ES_READONLY | ES_PASSWORD | ES_NUMBER},
                            {216, L"Static", L"Name:", WS_VISIBLE | WS_GROUP, 0},
                            {218, L"Static", L"Icon:", WS_VISIBLE | WS_GROUP, 0},
                            {208, L"Static", L"", WS_VISIBLE, WS_TABSTOP | WS_BORDER},
                            {209, L"Button", L"Change...", WS_VISIBLE | WS_TABSTOP, 0x0F}});
}

TEST_F(Resources, Template206IsChooseIcon)
{
    const HWND dialog = Create(206);
    EXPECT_EQ(L"Choose Icon", TextOf(dialog));
    // The dialog owns the list's images.
    ExpectControls(dialog, {{201, L"SysListView32", L"",
                             WS_VISIBLE | WS_TABSTOP | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                                 LVS_SHAREIMAGELISTS | LVS_AUTOARRANGE,
                             LVS_TYPEMASK | LVS_OWNERDATA | LVS_EDITLABELS}});
}

TEST_F(Resources, Template207IsManagePinnedWithItsTree)
{
    const HWND dialog = Create(207);
    EXPECT_EQ(L"Manage Pinned", TextOf(dialog));
    ExpectControls(dialog, {{203, L"SysTreeView32", L"", WS_TABSTOP | WS_VISIBLE | TVS_HASBUTTONS,
                             TVS_CHECKBOXES}});
}

TEST_F(Resources, Template209IsMenuOptions)
{
    const HWND dialog = Create(209);
    ExpectControls(
        dialog,
        {{214, L"Static", L"Layout", WS_VISIBLE | WS_GROUP, 0},
         {210, L"Button", L"One by one", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 0},
         {211, L"Button", L"Grid", BS_AUTORADIOBUTTON, WS_GROUP},
         {215, L"Static", L"Display Options", WS_VISIBLE | WS_GROUP, 0},
         {212, L"Button", L"Display most used items first", BS_AUTOCHECKBOX | WS_TABSTOP, 0x0C},
         {213, L"Button", L"Optimize for hardware navigation", BS_AUTOCHECKBOX | WS_TABSTOP,
          0x0C}});
}

TEST_F(Resources, Template203IsSelectFileWithItsTree)
{
    const HWND dialog = Create(203);
    EXPECT_EQ(L"Select File", TextOf(dialog));
    ExpectControls(dialog, {{207, L"SysTreeView32", L"", WS_TABSTOP | WS_VISIBLE | TVS_HASBUTTONS,
                             TVS_CHECKBOXES}});
}

TEST_F(Resources, Template208IsSelectLinkWithItsTree)
{
    const HWND dialog = Create(208);
    EXPECT_EQ(L"Select Link", TextOf(dialog));
    ExpectControls(dialog, {{209, L"SysTreeView32", L"", WS_TABSTOP | WS_VISIBLE | TVS_HASBUTTONS,
                             TVS_CHECKBOXES}});
}

TEST_F(Resources, Template201IsSelectCity)
{
    RegisterExtraControls();
    const HWND dialog = Create(201);
    EXPECT_EQ(L"Select City", TextOf(dialog));
    ExpectControls(dialog, {{201, L"Edit", L"", WS_VISIBLE | ES_AUTOHSCROLL | WS_TABSTOP,
                             ES_MULTILINE | ES_READONLY | ES_PASSWORD | ES_NUMBER | WS_GROUP},
                            {202, L"SysListView32", L"",
                             WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER |
                                 LVS_NOSORTHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP,
                             LVS_SORTASCENDING | LVS_SORTDESCENDING | LVS_EDITLABELS},
                            {65535, L"SIPPREF", L"", 0, WS_VISIBLE}});
}

TEST_F(Resources, TemplatesAreHiddenPopups)
{
    RegisterExtraControls();
    for (const UINT id : {9u, 201u, 202u, 204u, 206u, 209u})
    {
        const HWND dialog = Create(id);
        const auto style = static_cast<DWORD>(GetWindowLongW(dialog, GWL_STYLE));
        EXPECT_EQ(static_cast<DWORD>(WS_POPUP), style & (WS_POPUP | WS_CHILD | WS_VISIBLE));
        // A caption in a template brings the style of one with it; the shell takes it away.
        EXPECT_EQ(0u, style & (WS_THICKFRAME | WS_SYSMENU));
        DestroyWindow(dialog);
    }
    Create(9);
}

TEST_F(Resources, Menu207IsDoneAndCancel)
{
    const HMENU menu = LoadMenuW(module.Handle(), MAKEINTRESOURCEW(207));
    ExpectMenu(menu, {{IDOK, L"Done"}, {IDCANCEL, L"Cancel"}});
    DestroyMenu(menu);
}

TEST_F(Resources, Menu203IsDoneAndTheMenuEditorsCommands)
{
    const HMENU menu = LoadMenuW(module.Handle(), MAKEINTRESOURCEW(203));
    ExpectMenu(menu, {{IDOK, L"Done"}, {kPopup, L"Menu"}});
    ExpectMenu(GetSubMenu(menu, 1), {{32775, L"Move Up"},
                                     {32774, L"Move Down"},
                                     {0, L""},
                                     {32772, L"Edit..."},
                                     {32773, L"Remove"},
                                     {0, L""},
                                     {kPopup, L"Add"},
                                     {32792, L"Menu Options..."}});
    ExpectMenu(GetSubMenu(GetSubMenu(menu, 1), 6),
               {{32782, L"Menu..."}, {32783, L"Link..."}, {32785, L"File..."}});
    DestroyMenu(menu);
}

TEST_F(Resources, StringsHaveTheirNumbers)
{
    EXPECT_EQ(L"Tav Menu", String(101));
    EXPECT_EQ(L"Programs", String(102));
    EXPECT_EQ(L"Menu Options ('%s')", String(103));
    EXPECT_EQ(L"Only %d items may be pinned", String(109));
    EXPECT_EQ(L"Tav Lumenar", String(110));
}

TEST_F(Resources, TheModuleTellsItsVersion)
{
    EXPECT_NE(nullptr, FindResourceW(module.Handle(), MAKEINTRESOURCEW(1), RT_VERSION));
}
