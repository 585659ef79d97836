// The dialog's template and strings, by the numbers that hosts and translations rely on.
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

namespace
{

INT_PTR CALLBACK HandleNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

class NowTemplate : public testing::Test
{
protected:
    NowTemplate()
    {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&classes);
        dialog =
            CreateDialogParamW(module.Handle(), MAKEINTRESOURCEW(210), nullptr, HandleNothing, 0);
        EXPECT_NE(nullptr, dialog);
    }
    ~NowTemplate() override { DestroyWindow(dialog); }

    static std::wstring ClassOf(HWND window)
    {
        wchar_t name[64] = {};
        GetClassNameW(window, name, 64);
        return name;
    }
    static DWORD StyleOf(HWND window)
    {
        return static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    }

    CRegistrySandbox registry;
    CModule module;
    HWND dialog = nullptr;
};

} // namespace

TEST_F(NowTemplate, IsAHiddenPopupWithItsTitle)
{
    EXPECT_EQ(L"Customize Now Screen", TextOf(dialog));
    EXPECT_EQ(static_cast<DWORD>(WS_POPUP),
              StyleOf(dialog) & static_cast<DWORD>(WS_POPUP | WS_CHILD | WS_VISIBLE));
}

TEST_F(NowTemplate, HasItsFourControlsAllHidden)
{
    std::vector<int> ids;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        ids.push_back(GetDlgCtrlID(child) & 0xFFFF);
        EXPECT_EQ(0u, StyleOf(child) & WS_VISIBLE) << ids.back();
    }
    EXPECT_EQ((std::vector<int>{219, 202, 220, 65535}), ids);
}

TEST_F(NowTemplate, TheEmptyTextIsCentred)
{
    const HWND text = GetDlgItem(dialog, 219);
    EXPECT_EQ(L"Static", ClassOf(text));
    EXPECT_EQ(static_cast<DWORD>(SS_CENTER), StyleOf(text) & SS_TYPEMASK);
    EXPECT_EQ(L"No plugins installed", TextOf(text));
}

TEST_F(NowTemplate, TheExplanationIsAPlainText)
{
    const HWND text = GetDlgItem(dialog, 220);
    EXPECT_EQ(L"Static", ClassOf(text));
    EXPECT_EQ(static_cast<DWORD>(SS_LEFT), StyleOf(text) & SS_TYPEMASK);
    EXPECT_NE(0u, StyleOf(text) & WS_GROUP) << "it would be set in bold";
    EXPECT_EQ(L"Checked items will be used on the Now Screen instead of default ones.",
              TextOf(text));
}

TEST_F(NowTemplate, TheListIsASortedReportWithoutHeader)
{
    const HWND list = GetDlgItem(dialog, 202);
    EXPECT_EQ(L"SysListView32", ClassOf(list));
    constexpr DWORD kStyle = LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_SORTASCENDING |
                             LVS_NOCOLUMNHEADER | WS_TABSTOP;
    EXPECT_EQ(kStyle, StyleOf(list) & (kStyle | LVS_OWNERDATA | LVS_SORTDESCENDING));
    // Some list views turn a border into an edge of their own.
    EXPECT_TRUE((StyleOf(list) & WS_BORDER) ||
                (GetWindowLongW(list, GWL_EXSTYLE) & WS_EX_CLIENTEDGE));
}

TEST_F(NowTemplate, TheLastControlIsTheInputPanelPreference)
{
    HWND last = GetWindow(dialog, GW_CHILD);
    last = GetWindow(last, GW_HWNDLAST);
    EXPECT_EQ(L"SIPPREF", ClassOf(last));
}

TEST_F(NowTemplate, TheNamesOfTheKindsHaveTheirNumbers)
{
    const auto string = [this](UINT id)
    {
        wchar_t text[100] = {};
        LoadStringW(module.Handle(), id, text, 100);
        return std::wstring(text);
    };
    EXPECT_EQ(L" (email)", string(104));
    EXPECT_EQ(L" (calendar)", string(105));
    EXPECT_EQ(L" (weather)", string(106));
    EXPECT_EQ(L" (profile)", string(107));
}
