#include "frame/Localizer.h"

#include "platform/Handles.h"
#include "tests/frame/TranslationFixture.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

class LocalizerWindow : public testing::Test
{
protected:
    LocalizerWindow()
    {
        dialog.reset(CreateWindowExW(0, L"STATIC", L"Caption", WS_POPUP | WS_CAPTION, 0, 0, 200,
                                     200, nullptr, nullptr, nullptr, nullptr));
        LoadTexts(localizer, L"Caption|\u00DCberschrift\nDone|Fertig\nOne|Eins\nThree|Drei\n"
                             L"Grandchild|Enkel\n");
    }

    HWND Child(const wchar_t* windowClass, const wchar_t* text, DWORD style = 0,
               HWND parent = nullptr) const
    {
        return CreateWindowExW(0, windowClass, text, WS_CHILD | style, 0, 0, 50, 100,
                               parent ? parent : dialog.get(), nullptr, nullptr, nullptr);
    }

    HWND Combo(DWORD style = CBS_DROPDOWNLIST) const
    {
        const HWND combo = Child(L"COMBOBOX", L"", style);
        for (const wchar_t* item : {L"One", L"Two", L"Three"})
            SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        return combo;
    }

    UniqueWindow dialog;
    CTavLocalizerWTL localizer;
};

std::wstring TextOf(HWND window)
{
    std::vector<wchar_t> text(8192);
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::vector<std::wstring> ItemsOf(HWND combo)
{
    std::vector<std::wstring> items;
    const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
    {
        const auto index = static_cast<WPARAM>(i);
        std::vector<wchar_t> text(
            static_cast<size_t>(SendMessageW(combo, CB_GETLBTEXTLEN, index, 0)) + 1);
        SendMessageW(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        items.emplace_back(text.data());
    }
    return items;
}

using Items = std::vector<std::wstring>;

TEST_F(LocalizerWindow, AWindowTextIsTranslated)
{
    const HWND button = Child(L"BUTTON", L"Done");
    localizer.TranslateWindowText(button);
    EXPECT_EQ(L"Fertig", TextOf(button));
}

TEST_F(LocalizerWindow, AWindowTextWithoutTranslationStays)
{
    const HWND button = Child(L"BUTTON", L"Cancel");
    localizer.TranslateWindowText(button);
    EXPECT_EQ(L"Cancel", TextOf(button));
}

TEST_F(LocalizerWindow, WhatIsNoWindowIsLeftAlone)
{
    localizer.TranslateWindowText(nullptr);
    localizer.TranslateComboBox(nullptr);
    localizer.TranslateDialog(nullptr);
    localizer.TranslateMenuBar(nullptr, TRUE);
    const HWND gone = Child(L"BUTTON", L"Done");
    DestroyWindow(gone);
    localizer.TranslateWindowText(gone);
    localizer.TranslateDialog(gone);
    localizer.TranslateMenuBar(gone, FALSE);
}

TEST_F(LocalizerWindow, AWindowTextOf4096CharactersIsTranslated)
{
    const std::wstring text(4096, L'x');
    LoadTexts(localizer, text + L"|short\n");
    const HWND button = Child(L"BUTTON", text.c_str());
    localizer.TranslateWindowText(button);
    EXPECT_EQ(L"short", TextOf(button));
}

TEST_F(LocalizerWindow, T14AVeryLongWindowTextIsHarmless)
{
    const std::wstring text(6000, L'x');
    LoadTexts(localizer, text + L"|short\n");
    const HWND button = Child(L"BUTTON", text.c_str());
    localizer.TranslateWindowText(button);
    EXPECT_EQ(text, TextOf(button));
}

TEST_F(LocalizerWindow, ComboBoxItemsAreTranslatedInTheirPlaces)
{
    const HWND combo = Combo();
    localizer.TranslateComboBox(combo);
    EXPECT_EQ((Items{L"Eins", L"Two", L"Drei"}), ItemsOf(combo));
}

TEST_F(LocalizerWindow, ItemsOfASortedComboBoxKeepTheirPlaces)
{
    const HWND combo = Combo(CBS_DROPDOWNLIST | CBS_SORT);
    ASSERT_EQ((Items{L"One", L"Three", L"Two"}), ItemsOf(combo));
    localizer.TranslateComboBox(combo);
    EXPECT_EQ((Items{L"Eins", L"Drei", L"Two"}), ItemsOf(combo));
}

TEST_F(LocalizerWindow, TranslatedItemsLoseTheirItemData)
{
    const HWND combo = Combo();
    for (WPARAM i = 0; i < 3; ++i)
        SendMessageW(combo, CB_SETITEMDATA, i, static_cast<LPARAM>(100 + i));
    localizer.TranslateComboBox(combo);
    EXPECT_EQ(0, SendMessageW(combo, CB_GETITEMDATA, 0, 0));
    EXPECT_EQ(101, SendMessageW(combo, CB_GETITEMDATA, 1, 0)) << "this one has no translation";
    EXPECT_EQ(0, SendMessageW(combo, CB_GETITEMDATA, 2, 0));
}

TEST_F(LocalizerWindow, T14AComboBoxItemTooLongForTheBufferIsSkipped)
{
    const HWND combo = Child(L"COMBOBOX", L"", CBS_DROPDOWNLIST);
    const std::wstring longest(4095, L'x');
    const std::wstring tooLong(4096, L'y');
    for (const std::wstring& item : {tooLong, longest, std::wstring(10000, L'z')})
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    LoadTexts(localizer, longest + L"|longest\n" + tooLong + L"|too long\n");
    localizer.TranslateComboBox(combo);
    EXPECT_EQ((Items{tooLong, L"longest", std::wstring(10000, L'z')}), ItemsOf(combo));
}

TEST_F(LocalizerWindow, ItemsWithoutTextsOfTheirOwnKeepTheirData)
{
    const HWND combo = Child(L"COMBOBOX", L"", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED);
    for (const INT_PTR data : {INT_PTR{-1}, INT_PTR{0}, INT_PTR{0x41414141}})
        SendMessageW(combo, CB_ADDSTRING, 0, data);
    localizer.TranslateComboBox(combo);
    EXPECT_EQ(3, SendMessageW(combo, CB_GETCOUNT, 0, 0));
    EXPECT_EQ(-1, SendMessageW(combo, CB_GETITEMDATA, 0, 0));
    EXPECT_EQ(0x41414141, SendMessageW(combo, CB_GETITEMDATA, 2, 0));
}

TEST_F(LocalizerWindow, AnEmptyComboBoxStaysEmpty)
{
    const HWND combo = Child(L"COMBOBOX", L"", CBS_DROPDOWNLIST);
    localizer.TranslateComboBox(combo);
    EXPECT_EQ(Items{}, ItemsOf(combo));
}

TEST_F(LocalizerWindow, ADialogsCaptionChildrenAndComboBoxesAreTranslated)
{
    const HWND button = Child(L"BUTTON", L"Done");
    const HWND label = Child(L"STATIC", L"One");
    const HWND edit = Child(L"EDIT", L"Three");
    const HWND combo = Combo();
    localizer.TranslateDialog(dialog.get());
    EXPECT_EQ(L"\u00DCberschrift", TextOf(dialog.get()));
    EXPECT_EQ(L"Fertig", TextOf(button));
    EXPECT_EQ(L"Eins", TextOf(label));
    EXPECT_EQ(L"Drei", TextOf(edit));
    EXPECT_EQ((Items{L"Eins", L"Two", L"Drei"}), ItemsOf(combo));
}

TEST_F(LocalizerWindow, TheTextOfAComboBoxIsTranslatedToo)
{
    const HWND combo = Combo(CBS_DROPDOWN);
    SetWindowTextW(combo, L"Done");
    localizer.TranslateDialog(dialog.get());
    EXPECT_EQ(L"Fertig", TextOf(combo));
}

TEST_F(LocalizerWindow, GrandchildrenAreNotVisited)
{
    const HWND group = Child(L"STATIC", L"Done");
    const HWND grandchild = Child(L"BUTTON", L"Grandchild", 0, group);
    localizer.TranslateDialog(dialog.get());
    EXPECT_EQ(L"Fertig", TextOf(group));
    EXPECT_EQ(L"Grandchild", TextOf(grandchild));
}

TEST_F(LocalizerWindow, TheItemsOfAnotherClassOfWindowStay)
{
    WNDCLASSEXW likeCombo = {};
    likeCombo.cbSize = sizeof(likeCombo);
    GetClassInfoExW(nullptr, L"COMBOBOX", &likeCombo);
    likeCombo.lpszClassName = L"comboboxlike";
    likeCombo.hInstance = GetModuleHandleW(nullptr);
    ASSERT_NE(0, RegisterClassExW(&likeCombo));
    const HWND combo = Child(L"comboboxlike", L"", CBS_DROPDOWNLIST);
    SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"One"));
    localizer.TranslateDialog(dialog.get());
    EXPECT_EQ((Items{L"One"}), ItemsOf(combo));
}

TEST_F(LocalizerWindow, ADialogIsMadeFromAResource)
{
    const UniqueWindow made(localizer.CreateDialogFromResource(
        GetModuleHandleW(nullptr), MAKEINTRESOURCEW(200), dialog.get()));
    ASSERT_TRUE(static_cast<bool>(made));
    EXPECT_EQ(L"Hello", TextOf(made.get()));
    EXPECT_EQ(dialog.get(), GetWindow(made.get(), GW_OWNER));
    EXPECT_EQ(L"Done", TextOf(GetDlgItem(made.get(), 1001)));
    EXPECT_EQ(0, SendMessageW(made.get(), WM_APP, 0, 0));
    localizer.TranslateDialog(made.get());
    EXPECT_EQ(L"Fertig", TextOf(GetDlgItem(made.get(), 1001)));
}

TEST_F(LocalizerWindow, AMissingDialogResourceGivesNoWindow)
{
    EXPECT_EQ(nullptr, localizer.CreateDialogFromResource(GetModuleHandleW(nullptr),
                                                          MAKEINTRESOURCEW(999), dialog.get()));
    EXPECT_EQ(nullptr, localizer.CreateDialogFromResource(GetModuleHandleW(nullptr), L"absent",
                                                          dialog.get()));
}

} // namespace
