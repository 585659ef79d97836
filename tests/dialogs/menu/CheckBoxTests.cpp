// Check boxes: held in the tree, written in one pass by "Done", and only where they changed.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

class CheckBoxes : public EditorFixture
{
protected:
    using Lines = std::vector<std::wstring>;

    void SetBox(const std::wstring& path, UINT box) { tree.SetBox(tree.Find(path), box); }

    // What "Done" writes to the customisation layer.
    Lines WrittenByDone()
    {
        const std::wstring before = registry.CustomDump();
        Done();
        return DumpDifference(before, registry.CustomDump());
    }
};

} // namespace

TEST_F(CheckBoxes, DoneWithoutAChangeWritesNothing)
{
    Open();
    EXPECT_EQ(Lines{}, WrittenByDone());
}

TEST_F(CheckBoxes, DoneWritesAnItemThatWasSwitchedOff)
{
    Open();
    SetBox(L"Programs/Calendar", BoxOff);
    EXPECT_EQ((Lines{L"+\\Programs\\Calendar", L"+\\Programs\\Calendar|Inactive=01000000"}),
              WrittenByDone());
}

TEST_F(CheckBoxes, DoneWritesAnItemThatWasSwitchedOn)
{
    Open();
    SetBox(L"Programs/Notes", BoxOn);
    EXPECT_EQ(
        (Lines{L"+\\Programs\\Notes|Inactive=00000000", L"-\\Programs\\Notes|Inactive=01000000"}),
        WrittenByDone());
}

TEST_F(CheckBoxes, ABuiltInMenuThatWasOffIsSwitchedOnInTheCustomisationLayer)
{
    Open();
    SetBox(L"Tools", BoxOn);
    EXPECT_EQ((Lines{L"+\\Tools", L"+\\Tools|Inactive=00000000"}), WrittenByDone());
    EXPECT_EQ(1u, registry.Dword((std::wstring(kProductMenu) + L"\\Tools").c_str(), L"Inactive"));
}

TEST_F(CheckBoxes, EveryChangedItemIsWrittenWhereverItStands)
{
    Open();
    SetBox(L"Programs/Games/Chess", BoxOff);
    SetBox(L"My Menu", BoxOff);
    SetBox(L"My Menu/Radio", BoxOff);
    SetBox(L"Messaging", BoxOff);
    EXPECT_EQ((Lines{L"+\\Messaging", L"+\\Messaging|Inactive=01000000", L"+\\Programs\\Games",
                     L"+\\Programs\\Games\\Chess", L"+\\Programs\\Games\\Chess|Inactive=01000000",
                     L"+\\User 1\\User 2|Inactive=01000000", L"+\\User 1|Inactive=01000000"}),
              WrittenByDone());
}

TEST_F(CheckBoxes, ABoxThatWasSwitchedThereAndBackIsNotWritten)
{
    Open();
    SetBox(L"Programs/Calendar", BoxOff);
    SetBox(L"Programs/Calendar", BoxOn);
    EXPECT_EQ(Lines{}, WrittenByDone());
}

TEST_F(CheckBoxes, NothingIsWrittenBeforeDone)
{
    Open();
    const std::wstring before = registry.CustomDump();
    SetBox(L"Programs/Calendar", BoxOff);
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(CheckBoxes, CancelWritesNothing)
{
    Open();
    const std::wstring before = registry.CustomDump();
    SetBox(L"Programs/Calendar", BoxOff);
    SetBox(L"Programs/Notes", BoxOn);
    Cancel();
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(CheckBoxes, TheRootAndTheSettingsMenuAreNeverWritten)
{
    Open();
    SetBox(L"", BoxOff);
    SetBox(L"Settings", BoxOff);
    EXPECT_EQ(Lines{}, WrittenByDone());
}

TEST_F(CheckBoxes, AnInactiveSettingsMenuStaysInactive)
{
    registry.SetCustom(L"Settings", L"Inactive", 1);
    Open();
    SetBox(L"Settings", BoxOn);
    EXPECT_EQ(Lines{}, WrittenByDone());
}

TEST_F(CheckBoxes, AnythingButACheckedBoxCountsAsOff)
{
    Open();
    SetBox(L"Programs/Calendar", NoBox);
    SetBox(L"Messaging", 3);
    EXPECT_EQ((Lines{L"+\\Messaging", L"+\\Messaging|Inactive=01000000", L"+\\Programs\\Calendar",
                     L"+\\Programs\\Calendar|Inactive=01000000"}),
              WrittenByDone());
}

TEST_F(CheckBoxes, ANodeOfAnUnknownItemIsPassedOver)
{
    Open();
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = tree.Find(L"Programs/Calendar");
    item.lParam = 0x7FFFFFF0;
    SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SetBox(L"Programs/Calendar", BoxOff);
    SetBox(L"Programs/Maps", BoxOff);
    EXPECT_EQ(Lines{L"+\\Programs\\User 3|Inactive=01000000"}, WrittenByDone());
}

TEST_F(CheckBoxes, WhatWasWrittenIsShownAtTheNextOpening)
{
    Open();
    SetBox(L"Programs/Calendar", BoxOff);
    SetBox(L"Programs/Notes", BoxOn);
    Done();
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOff), tree.BoxOf(tree.Find(L"Programs/Calendar")));
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Programs/Notes")));
}
