// The install wizard, on a screen that turns while it is open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/wizard/WizardFixture.h"

namespace
{

class WizardTurnGeometry : public WizardFixture
{
protected:
    // Checks that the three gaps beside the pictures are alike and each choice is below its
    // picture.
    void ExpectSpread()
    {
        ExpectFillsRoom(dialog);
        const int width = GetSystemMetrics(SM_CXSCREEN);
        const int gap = (width - Px(kClassicSize.cx) - Px(kProfessionalSize.cx)) / 3;
        EXPECT_EQ(gap, PlaceOf(kClassicPicture).left);
        EXPECT_EQ(2 * gap + Px(kClassicSize.cx), PlaceOf(kProfessionalPicture).left);
        EXPECT_EQ(PlaceOf(kClassicPicture).bottom + Px(4), PlaceOf(kClassic).top);
        EXPECT_EQ(PlaceOf(kProfessionalPicture).bottom + Px(4), PlaceOf(kProfessional).top);
    }

    CTurningScreen screen;
};

} // namespace

TEST_F(WizardTurnGeometry, ThePicturesAreSpreadAnewAndDoneWritesTheChoice)
{
    OpenWithPictures();
    Choose(kProfessional);
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectSpread();
        EXPECT_TRUE(IsChecked(kProfessional));
    }
    End(IDOK);
    EXPECT_EQ(L"Detailed", StoredType());
}
