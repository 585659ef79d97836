// Places and sizes on every size of screen, and how they are computed.
#include "tests/dialogs/wizard/WizardFixture.h"

#include "dialogs/wizard/WizardLayout.h"

namespace
{

class WizardGeometry : public WizardFixture
{
protected:
    int ClientWidth()
    {
        RECT client = {};
        GetClientRect(dialog, &client);
        return client.right;
    }
    void ExpectPlace(const RECT& expected, int id)
    {
        const RECT place = PlaceOf(id);
        EXPECT_EQ(expected.left, place.left) << id;
        EXPECT_EQ(expected.top, place.top) << id;
        EXPECT_EQ(expected.right, place.right) << id;
        EXPECT_EQ(expected.bottom, place.bottom) << id;
    }
    // The places for pictures of these sizes in bitmap pixels.
    void ExpectSpread(SIZE classic, SIZE professional)
    {
        const int w1 = Px(classic.cx);
        const int w2 = Px(professional.cx);
        const int gap = (ClientWidth() - w1 - w2) / 3;
        const int top = PlaceOf(kClassicPicture).top;
        EXPECT_EQ(top, PlaceOf(kProfessionalPicture).top);
        const int bottom1 = top + Px(classic.cy);
        const int bottom2 = top + Px(professional.cy);
        ExpectPlace({gap, top, gap + w1, bottom1}, kClassicPicture);
        ExpectPlace({2 * gap + w1, top, 2 * gap + w1 + w2, bottom2}, kProfessionalPicture);
        ExpectPlace({gap, bottom1 + Px(4), gap + w1, bottom1 + Px(4) + m_buttonHeight}, kClassic);
        ExpectPlace(
            {2 * gap + w1, bottom2 + Px(4), 2 * gap + w1 + w2, bottom2 + Px(4) + m_buttonHeight},
            kProfessional);
    }
    // What the template gives the buttons, measured in a dialog that nobody lays out.
    void MeasureButtons()
    {
        module = std::make_unique<CModule>();
        const HWND plain = CreateDialogParamW(
            module->Handle(), MAKEINTRESOURCEW(211), nullptr,
            [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
        ASSERT_NE(nullptr, plain);
        RECT rect = {};
        GetWindowRect(GetDlgItem(plain, kClassic), &rect);
        m_buttonHeight = rect.bottom - rect.top;
        DestroyWindow(plain);
    }

private:
    int m_buttonHeight = 0;
};

WizardPlaces TemplatePlaces()
{
    return {{{8, 10, 70, 100}, {8, 110, 70, 125}}, {{80, 12, 150, 100}, {80, 111, 150, 127}}};
}

void ExpectRect(const RECT& expected, const RECT& actual)
{
    EXPECT_TRUE(EqualRect(&expected, &actual))
        << actual.left << "," << actual.top << "," << actual.right << "," << actual.bottom;
}

} // namespace

TEST(WizardLayout, GapsBesideAndBetweenThePicturesAreEqual)
{
    const WizardPlaces places = SpreadWizard(TemplatePlaces(), 240, {60, 80}, {90, 70}, 4);
    ExpectRect({30, 10, 90, 90}, places.Classic.Picture);
    ExpectRect({120, 12, 210, 82}, places.Professional.Picture);
    ExpectRect({30, 94, 90, 109}, places.Classic.Button);
    ExpectRect({120, 86, 210, 102}, places.Professional.Button);
}

TEST(WizardLayout, TheRestOfTheDivisionStaysAtTheRight)
{
    const WizardPlaces places = SpreadWizard(TemplatePlaces(), 242, {60, 80}, {90, 70}, 4);
    EXPECT_EQ(30, places.Classic.Picture.left);
    EXPECT_EQ(120, places.Professional.Picture.left);
}

TEST(WizardLayout, AMissingPictureHasNoSize)
{
    const WizardPlaces places = SpreadWizard(TemplatePlaces(), 240, {0, 0}, {90, 70}, 4);
    ExpectRect({50, 10, 50, 10}, places.Classic.Picture);
    ExpectRect({50, 14, 50, 29}, places.Classic.Button);
    ExpectRect({100, 12, 190, 82}, places.Professional.Picture);
}

TEST(WizardLayout, PicturesThatAreTooWideOverlap)
{
    const WizardPlaces places = SpreadWizard(TemplatePlaces(), 240, {200, 80}, {200, 80}, 4);
    EXPECT_EQ(-53, places.Classic.Picture.left);
    EXPECT_EQ(94, places.Professional.Picture.left);
}

TEST_F(WizardGeometry, ThePicturesAreSpreadAndTheButtonsStandBelow)
{
    MeasureButtons();
    OpenWithPictures();
    ExpectSpread(kClassicSize, kProfessionalSize);
}

TEST_F(WizardGeometry, WithoutPicturesTheButtonsHaveNoWidth)
{
    MeasureButtons();
    Open();
    ExpectSpread({0, 0}, {0, 0});
    EXPECT_EQ(PlaceOf(kClassic).left, PlaceOf(kClassic).right);
}

TEST_F(WizardGeometry, WithOnePictureTheOtherTakesNoRoom)
{
    MeasureButtons();
    WriteWizardArchive(folder, {BothPictures()[1]});
    Open();
    ExpectSpread({0, 0}, kProfessionalSize);
}

TEST_F(WizardGeometry, AResetOfTheScreenSpreadsThemAgain)
{
    MeasureButtons();
    OpenWithPictures();
    SetWindowPos(Control(kClassic), nullptr, 1, 1, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    SetWindowPos(dialog, nullptr, 0, 0, Px(200), Px(200), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0));
    ExpectSpread(kClassicSize, kProfessionalSize);
}

TEST_F(WizardGeometry, OtherSettingsLeaveThemWhereTheyAre)
{
    OpenWithPictures();
    SetWindowPos(Control(kClassic), nullptr, 1, 1, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const WPARAM setting : {WPARAM{0}, WPARAM{0xE0}, WPARAM{0x3001}, ~WPARAM{0}})
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, setting, 0));
    EXPECT_EQ(1, PlaceOf(kClassic).left);
    EXPECT_EQ(1, PlaceOf(kClassic).top);
}

TEST_F(WizardGeometry, ThePicturesFillTheirControls)
{
    OpenWithPictures();
    for (const int id : {kClassicPicture, kProfessionalPicture})
    {
        RECT rect = {};
        GetWindowRect(Control(id), &rect);
        const COLORREF colour = id == kClassicPicture ? kClassicColour : kProfessionalColour;
        EXPECT_TRUE(TurnsInto(colour, rect.left, rect.top));
        EXPECT_TRUE(TurnsInto(colour, rect.right - 1, rect.bottom - 1));
    }
}

TEST_F(WizardGeometry, FillsTheScreenAboveItsSoftKeys)
{
    OpenWithPictures();
    RECT own = {};
    RECT bar = {};
    GetWindowRect(dialog, &own);
    GetWindowRect(GetParent(SoftKeyBar(dialog)), &bar);
    EXPECT_EQ(0, own.left);
    EXPECT_EQ(0, own.top);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), own.right);
    EXPECT_EQ(bar.top, own.bottom);
}

TEST_F(WizardGeometry, ControlsOfUsualPicturesStayOnTheScreenWithoutOverlap)
{
    WriteWizardArchive(folder, {{"Classic.bmp", BitmapFileOf(100, 130, kClassicColour)},
                                {"Professional.bmp", BitmapFileOf(100, 130, kProfessionalColour)}});
    Open();
    RECT client = {};
    GetClientRect(dialog, &client);
    const int ids[] = {kClassicPicture, kProfessionalPicture, kClassic, kProfessional};
    for (const int id : ids)
    {
        const RECT rect = PlaceOf(id);
        RECT common = {};
        EXPECT_TRUE(IntersectRect(&common, &rect, &client));
        EXPECT_TRUE(EqualRect(&common, &rect)) << id;
        for (const int other : ids)
        {
            const RECT second = PlaceOf(other);
            const bool overlaps = IntersectRect(&common, &rect, &second) != FALSE;
            EXPECT_EQ(other == id, overlaps) << id << " " << other;
        }
    }
}
