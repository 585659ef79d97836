#include "frame/Localizer.h"

#include "platform/Handles.h"
#include "tests/frame/TranslationFixture.h"
#include "tests/support/ImportPatch.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

extern "C" void* __imp_GetSubMenu;

namespace
{

std::wstring ItemText(HMENU menu, UINT position)
{
    wchar_t text[8192] = {};
    GetMenuStringW(menu, position, text, 8192, MF_BYPOSITION);
    return text;
}

void Append(HMENU menu, UINT id, const wchar_t* text)
{
    AppendMenuW(menu, MF_STRING, id, text);
}

void AppendPopup(HMENU menu, HMENU popup, const wchar_t* text)
{
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), text);
}

class LocalizerMenu : public testing::Test
{
protected:
    LocalizerMenu() : menu(CreatePopupMenu())
    {
        LoadTexts(localizer, L"Rename|Umbenennen\nAdd|Neu\nFolder|Ordner\nDone|Fertig\n"
                             L"Cancel|Abbrechen\nMenu|Men\u00FC\nUmbenennen|twice\n");
    }

    UniqueMenu menu;
    CTavLocalizerWTL localizer;
};

TEST_F(LocalizerMenu, ItemsAreTranslatedInTheirPlaces)
{
    Append(menu.get(), 1, L"Rename");
    Append(menu.get(), 2, L"Other");
    AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
    Append(menu.get(), 3, L"Add");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(L"Umbenennen", ItemText(menu.get(), 0));
    EXPECT_EQ(L"Other", ItemText(menu.get(), 1));
    EXPECT_EQ(L"Neu", ItemText(menu.get(), 3));
    EXPECT_EQ(1u, GetMenuItemID(menu.get(), 0));
    EXPECT_EQ(3u, GetMenuItemID(menu.get(), 3));
    EXPECT_NE(0u, GetMenuState(menu.get(), 2, MF_BYPOSITION) & MF_SEPARATOR);
}

TEST_F(LocalizerMenu, ItemsKeepTheirStateAndType)
{
    AppendMenuW(menu.get(), MF_STRING | MF_CHECKED | MF_GRAYED, 1, L"Rename");
    AppendMenuW(menu.get(), MF_STRING | MF_MENUBARBREAK, 2, L"Add");
    localizer.TranslateMenu(menu.get());
    const UINT first = GetMenuState(menu.get(), 0, MF_BYPOSITION);
    EXPECT_NE(0u, first & MF_CHECKED);
    EXPECT_NE(0u, first & MF_GRAYED);
    EXPECT_NE(0u, GetMenuState(menu.get(), 1, MF_BYPOSITION) & MF_MENUBARBREAK);
    EXPECT_EQ(L"Neu", ItemText(menu.get(), 1));
}

TEST_F(LocalizerMenu, PopupsAreTranslatedWithTheirItems)
{
    const HMENU popup = CreatePopupMenu();
    Append(popup, 1, L"Folder");
    AppendPopup(menu.get(), popup, L"Add");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(L"Neu", ItemText(menu.get(), 0));
    EXPECT_EQ(popup, GetSubMenu(menu.get(), 0)) << "the item keeps its pop-up";
    EXPECT_EQ(L"Ordner", ItemText(popup, 0));
}

TEST_F(LocalizerMenu, APopupWithoutTranslationIsStillEntered)
{
    const HMENU popup = CreatePopupMenu();
    Append(popup, 1, L"Folder");
    AppendPopup(menu.get(), popup, L"Other");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(L"Ordner", ItemText(popup, 0));
}

TEST_F(LocalizerMenu, T16MenusNestedAThousandDeepAreTranslated)
{
    // From the outside in: the system counts the depth of what is put into a menu.
    HMENU innermost = menu.get();
    for (int depth = 0; depth < 1000; ++depth)
    {
        const HMENU inner = CreatePopupMenu();
        AppendPopup(innermost, inner, L"Add");
        ASSERT_EQ(inner, GetSubMenu(innermost, 0));
        innermost = inner;
    }
    Append(innermost, 1, L"Folder");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(L"Ordner", ItemText(innermost, 0));
    for (HMENU current = menu.get(); current != innermost; current = GetSubMenu(current, 0))
        ASSERT_EQ(L"Neu", ItemText(current, 0));
}

// This system refuses to close a circle of menus; another one may not.
HMENU(WINAPI* g_realGetSubMenu)(HMENU, int);
HMENU g_outer;
HMENU g_inner;

HMENU WINAPI SubMenuInACircle(HMENU menu, int position)
{
    return menu == g_inner && position == 0 ? g_outer : g_realGetSubMenu(menu, position);
}

TEST_F(LocalizerMenu, T16MenusThatContainEachOtherAreTranslatedOnce)
{
    g_outer = menu.get();
    g_inner = CreatePopupMenu();
    Append(g_inner, 2, L"Folder");
    Append(g_outer, 1, L"Rename");
    AppendPopup(g_outer, g_inner, L"Add");
    std::memcpy(&g_realGetSubMenu, &__imp_GetSubMenu, sizeof(g_realGetSubMenu));
    {
        const CImportPatch patch(&__imp_GetSubMenu, SubMenuInACircle);
        localizer.TranslateMenu(g_outer);
    }
    EXPECT_EQ(L"Umbenennen", ItemText(g_outer, 0)) << "its translation is a key, too";
    EXPECT_EQ(L"Neu", ItemText(g_outer, 1));
    EXPECT_EQ(L"Ordner", ItemText(g_inner, 0));
}

TEST_F(LocalizerMenu, T16APopupThatStandsInTwoPlacesIsTranslatedOnce)
{
    const HMENU shared = CreatePopupMenu();
    Append(shared, 1, L"Rename");
    AppendPopup(menu.get(), shared, L"Add");
    AppendPopup(menu.get(), shared, L"Other");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(L"Umbenennen", ItemText(shared, 0)) << "its translation is a key, too";
    RemoveMenu(menu.get(), 1, MF_BYPOSITION);
}

TEST_F(LocalizerMenu, ItemsThatAreNoTextsStay)
{
    const UniqueBitmap bitmap(CreateBitmap(8, 8, 1, 1, nullptr));
    AppendMenuW(menu.get(), MF_BITMAP, 1, reinterpret_cast<const wchar_t*>(bitmap.get()));
    AppendMenuW(menu.get(), MF_OWNERDRAW, 2, reinterpret_cast<const wchar_t*>(INT_PTR{4}));
    Append(menu.get(), 3, L"Add");
    localizer.TranslateMenu(menu.get());
    EXPECT_NE(0u, GetMenuState(menu.get(), 0, MF_BYPOSITION) & MF_BITMAP);
    EXPECT_NE(0u, GetMenuState(menu.get(), 1, MF_BYPOSITION) & MF_OWNERDRAW);
    EXPECT_EQ(L"Neu", ItemText(menu.get(), 2));
}

TEST_F(LocalizerMenu, AVeryLongItemIsHarmless)
{
    const std::wstring text(6000, L'x');
    Append(menu.get(), 1, text.c_str());
    Append(menu.get(), 2, L"Add");
    localizer.TranslateMenu(menu.get());
    EXPECT_EQ(text, ItemText(menu.get(), 0));
    EXPECT_EQ(L"Neu", ItemText(menu.get(), 1));
}

TEST_F(LocalizerMenu, WhatIsNoMenuIsLeftAlone)
{
    localizer.TranslateMenu(nullptr);
    localizer.TranslateMenu(reinterpret_cast<HMENU>(INT_PTR{0x7FFFFFF0}));
}

// Notes which buttons are asked for.
std::vector<WPARAM> g_asked;

LRESULT CALLBACK NoteButtons(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR)
{
    if (message == TB_GETBUTTON)
        g_asked.push_back(wParam);
    return DefSubclassProc(window, message, wParam, lParam);
}

// A plain toolbar, as a menu bar is made of.
class LocalizerMenuBar : public LocalizerMenu
{
protected:
    LocalizerMenuBar()
    {
        const INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_BAR_CLASSES};
        InitCommonControlsEx(&classes);
        owner.reset(CreateWindowExW(0, L"STATIC", L"Owner", WS_POPUP, 0, 0, 240, 300, nullptr,
                                    nullptr, nullptr, nullptr));
        bar = CreateWindowExW(0, TOOLBARCLASSNAMEW, L"", WS_CHILD | TBSTYLE_LIST, 0, 0, 240, 26,
                              owner.get(), nullptr, nullptr, nullptr);
        SendMessageW(bar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        SetWindowSubclass(bar, NoteButtons, 1, 0);
        g_asked.clear();
    }

    void AddButton(int command, const wchar_t* text, HMENU popup = nullptr) const
    {
        TBBUTTON button = {};
        button.iBitmap = I_IMAGENONE;
        button.idCommand = command;
        button.fsState = TBSTATE_ENABLED;
        button.dwData = reinterpret_cast<DWORD_PTR>(popup);
        button.iString = reinterpret_cast<INT_PTR>(text);
        SendMessageW(bar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    }

    std::wstring ButtonText(int command) const { return TextOfButton(bar, command); }

    static std::wstring TextOfButton(HWND toolbar, int command)
    {
        wchar_t text[1024] = {};
        TBBUTTONINFOW info = {};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_TEXT;
        info.pszText = text;
        info.cchText = 1024;
        SendMessageW(toolbar, TB_GETBUTTONINFOW, static_cast<WPARAM>(command),
                     reinterpret_cast<LPARAM>(&info));
        return text;
    }

    UniqueWindow owner;
    HWND bar = nullptr;
};

TEST_F(LocalizerMenuBar, ButtonsAreTranslated)
{
    AddButton(1, L"Done");
    AddButton(2, L"Other");
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(L"Fertig", ButtonText(1));
    EXPECT_EQ(L"Other", ButtonText(2));
}

TEST_F(LocalizerMenuBar, ButtonsAreWalkedFromTheLastToTheFirst)
{
    AddButton(1, L"Done");
    AddButton(2, L"Cancel");
    AddButton(3, L"Menu");
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ((std::vector<WPARAM>{2, 1, 0}), g_asked);
}

TEST_F(LocalizerMenuBar, AButtonsPopupIsTranslatedAndKept)
{
    Append(menu.get(), 301, L"Rename");
    const HMENU popup = CreatePopupMenu();
    Append(popup, 302, L"Folder");
    AppendPopup(menu.get(), popup, L"Add");
    AddButton(1, L"Done");
    AddButton(2, L"Menu", menu.get());
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(L"Men\u00FC", ButtonText(2));
    EXPECT_EQ(L"Umbenennen", ItemText(menu.get(), 0));
    EXPECT_EQ(L"Ordner", ItemText(popup, 0));
    TBBUTTON button = {};
    SendMessageW(bar, TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&button));
    EXPECT_EQ(reinterpret_cast<DWORD_PTR>(menu.get()), button.dwData);
}

TEST_F(LocalizerMenuBar, ThePopupOfAButtonWithoutTranslationIsTranslated)
{
    Append(menu.get(), 301, L"Rename");
    AddButton(2, L"Other", menu.get());
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(L"Umbenennen", ItemText(menu.get(), 0));
}

TEST_F(LocalizerMenuBar, T13AButtonsTranslationIsCutAt255Characters)
{
    LoadTexts(localizer,
              L"Done|" + std::wstring(255, L'x') + L"\nCancel|" + std::wstring(1000, L'y') + L"\n");
    AddButton(1, L"Done");
    AddButton(2, L"Cancel");
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(std::wstring(255, L'x'), ButtonText(1));
    EXPECT_EQ(std::wstring(255, L'y'), ButtonText(2));
}

TEST_F(LocalizerMenuBar, AButtonsWildPopupIsHarmless)
{
    AddButton(1, L"Done", reinterpret_cast<HMENU>(INT_PTR{0x7FFFFFF0}));
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(L"Fertig", ButtonText(1));
}

TEST_F(LocalizerMenuBar, AnEmptyBarStaysEmpty)
{
    localizer.TranslateMenuBar(bar, TRUE);
    EXPECT_EQ(0, SendMessageW(bar, TB_BUTTONCOUNT, 0, 0));
}

TEST_F(LocalizerMenuBar, WhatIsNoBarIsLeftAlone)
{
    localizer.TranslateMenuBar(owner.get(), TRUE);
    localizer.TranslateMenuBar(owner.get(), FALSE);
}

// The bar that the shell makes for a window from a menu resource of this program.
HWND ShellBar(HWND window, UINT menuId)
{
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = window;
    info.dwFlags = SHCMBF_HMENU;
    info.nToolBarId = menuId;
    info.hInstRes = GetModuleHandleW(nullptr);
    EXPECT_TRUE(SHCreateMenuBar(&info));
    return info.hwndMB;
}

TEST_F(LocalizerMenuBar, TheShellsBarOfADialogIsFoundAndTranslated)
{
    const HWND shellBar = ShellBar(owner.get(), 207);
    localizer.TranslateMenuBar(owner.get(), FALSE);
    EXPECT_EQ(L"Fertig", TextOfButton(shellBar, 1));
    EXPECT_EQ(L"Abbrechen", TextOfButton(shellBar, 2));
}

TEST_F(LocalizerMenuBar, ThePopupsOfTheShellsBarAreTranslated)
{
    const HWND shellBar = ShellBar(owner.get(), 203);
    localizer.TranslateMenuBar(owner.get(), FALSE);
    TBBUTTON button = {};
    ASSERT_TRUE(SendMessageW(shellBar, TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&button)));
    EXPECT_EQ(L"Men\u00FC", TextOfButton(shellBar, button.idCommand));
    const auto popup = reinterpret_cast<HMENU>(button.dwData);
    EXPECT_EQ(L"Umbenennen", ItemText(popup, 0));
    EXPECT_EQ(L"Neu", ItemText(popup, 2));
    EXPECT_EQ(L"Ordner", ItemText(GetSubMenu(popup, 2), 0));
}

} // namespace
