// Edit Item in both its forms and Choose Icon, on a screen that turns while they are open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Screen.h"

namespace
{

class EditTurnGeometry : public EditFixture
{
protected:
    CTurningScreen screen;
};

} // namespace

TEST_F(EditTurnGeometry, EditItemOfAMenuFollowsAndKeepsTheTypedName)
{
    OpenEdit(L"My Menu");
    SetName(L"Turned");
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(edit);
        ExpectFillsRoom(dialog);
        EXPECT_EQ(L"Turned", Name());
        EXPECT_EQ(Control(kNameId), run->Focus());
    }
    EndEdit(IDOK);
    EXPECT_EQ(L"Turned", registry.CustomText(L"User 1", L"Text"));
}

TEST_F(EditTurnGeometry, EditItemOfALinkFollowsAndItsDoneWritesOnTheTurnedScreen)
{
    OpenEdit(L"Programs/Maps");
    SetName(L"Atlas");
    screen.Turn();
    ExpectFillsRoom(edit);
    EndEdit(IDOK);
    ExpectControlFills(dialog, tree.Window());
    EXPECT_EQ(L"Atlas", registry.CustomText(L"Programs\\User 3", L"Text"));
}

TEST_F(EditTurnGeometry, ThreeDialogsOverEachOtherAllFollow)
{
    StartProcess(40);
    OpenEdit(L"My Menu");
    OpenChoice();
    SelectPlace(7);
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectControlFills(choice, list);
        ExpectFillsRoom(edit);
        ExpectControlFills(dialog, tree.Window());
        EXPECT_EQ(7, PlaceWith(LVNI_SELECTED));
        EXPECT_EQ(choice, run->InnermostDialog());
    }
    screen.Turn();
    EndChoice(IDOK);
    ExpectFillsRoom(edit);
    EndEdit(IDOK);
    // The icons begin at 100.
    EXPECT_EQ(107u, registry.CustomDword(L"User 1", L"Image"));
}
