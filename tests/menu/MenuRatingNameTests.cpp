// Which rating list a menu has, and under which name an item is entered in one.
#include "menu/Rating.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

class MenuRatingName : public MenuTest
{
protected:
    static std::wstring RatingOf(const std::wstring& keyPath)
    {
        const CMenuItemPtr item(new CMenuItem(keyPath));
        return item->GetRating();
    }
};

} // namespace

TEST_F(MenuRatingName, AMenuWithoutOneHasNone)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    EXPECT_EQ(L"", RatingOf(Product(L"\\Games")));
}

TEST_F(MenuRatingName, TheCustomisedNameGoesBeforeTheBuiltInOne)
{
    SetText(Product(L"\\Games"), L"Rating", L"Games");
    EXPECT_EQ(L"Games", RatingOf(Product(L"\\Games")));
    SetText(Custom(L"\\Games"), L"Rating", L"User 4");
    EXPECT_EQ(L"User 4", RatingOf(Product(L"\\Games")));
}

TEST_F(MenuRatingName, AUserMenuHasItsOwn)
{
    SetText(Custom(L"\\User 1"), L"Rating", L"User 2");
    EXPECT_EQ(L"User 2", RatingOf(Custom(L"\\User 1")));
}

TEST_F(MenuRatingName, WhatWouldLeadToAnotherKeyIsNoName)
{
    SetText(Product(L"\\Games"), L"Rating", L"Office\\Below");
    EXPECT_EQ(L"", RatingOf(Product(L"\\Games")));
    SetText(Product(L"\\Games"), L"Rating", std::wstring(256, L'x'));
    EXPECT_EQ(L"", RatingOf(Product(L"\\Games")));
}

TEST_F(MenuRatingName, AnItemThatNamesAShortcutIsEnteredAsTheShortcut)
{
    SetText(Custom(L"\\User 1"), L"File", L"\\Windows\\Notes.LNK");
    EXPECT_EQ(L"l:\\Windows\\Notes.LNK",
              Ratings::EntryNameOf(Custom(L"\\User 1"), Ratings::TargetKind::Menu));
    SetText(Custom(L"\\User 2"), L"File", L"\\Windows\\notes.exe");
    EXPECT_EQ(L"m:" + Custom(L"\\User 2"),
              Ratings::EntryNameOf(Custom(L"\\User 2"), Ratings::TargetKind::Menu));
    EXPECT_EQ(L"l:\\a.exe", Ratings::EntryNameOf(L"\\a.exe", Ratings::TargetKind::Link));
}
