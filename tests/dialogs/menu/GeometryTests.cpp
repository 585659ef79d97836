// Places and sizes on the screen, on every size of screen.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"

namespace
{

class DialogGeometry : public EditorFixture
{
protected:
    // Checks that a dialog has its title band and ends where its soft keys begin.
    static void ExpectFullScreenWithTitle(HWND window)
    {
        ExpectFullScreen(window);
        ExpectTitleBand();
    }
};

} // namespace

TEST_F(DialogGeometry, TheEditorFillsTheScreenAboveItsSoftKeys)
{
    Open();
    ExpectFullScreenWithTitle(dialog);
}

TEST_F(DialogGeometry, TheTreeFillsWhatTheTitleBandLeaves)
{
    Open();
    const RECT rect = RectOf(tree.Window());
    const RECT own = RectOf(dialog);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(own.right, rect.right);
    EXPECT_EQ(own.bottom, rect.bottom);
    // Below the line, as close as dialog units can say.
    EXPECT_GE(rect.top, Px(24));
    EXPECT_LE(rect.top, Px(24) + Px(2));
}

TEST_F(DialogGeometry, MenuOptionsFillsTheScreenAboveItsSoftKeys)
{
    Open();
    ExpectFullScreenWithTitle(OpenOptions(L"Programs", L"Menu Options ('Programs')"));
}

TEST_F(DialogGeometry, TheControlsOfMenuOptionsStandInTheirPlaceWithoutOverlap)
{
    Open();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    EXPECT_EQ(6u, ControlsOf(options).size());
    ExpectControlsApart(options);
}

TEST_F(DialogGeometry, TheTextsOfMenuOptionsFitIntoTheirControls)
{
    Open();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    // What the box of a check box or radio button takes.
    const int box = GetSystemMetrics(SM_CXMENUCHECK) + Px(4);
    for (const HWND control : ControlsOf(options))
    {
        const RECT rect = RectOf(control);
        const int left = GetDlgCtrlID(control) < 214 ? box : 0;
        EXPECT_LE(TextWidthOf(control) + left, rect.right - rect.left) << GetDlgCtrlID(control);
    }
}

TEST_F(DialogGeometry, RadioButtonsAndCheckBoxesStandOnEvenRows)
{
    Open();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    for (const int id : {210, 211, 212, 213})
        EXPECT_EQ(0, RectOf(GetDlgItem(options, id)).top % 2) << id;
}
