// The fonts of dialog texts. The pair is made once per process: each case runs in its own.
#include "ui/DialogFonts.h"

#include "frame/Localizer.h"
#include "tests/support/Pixels.h"
#include "tests/support/TranslationFixture.h"

#include <gtest/gtest.h>

namespace
{

LOGFONTW Describe(HFONT font)
{
    LOGFONTW info = {};
    EXPECT_NE(0, GetObjectW(font, sizeof(info), &info));
    return info;
}

// Nothing is translated unless a case says so.
class DialogFonts : public testing::Test
{
protected:
    ~DialogFonts() override { GetLocalizer().Clear(); }
};
class DialogFontsGeometry : public DialogFonts
{
};

void Translate(const std::wstring& entries)
{
    const CTempFolder folder;
    ASSERT_TRUE(GetLocalizer().LoadFile(WriteTranslation(folder, entries).c_str()));
}

} // namespace

TEST_F(DialogFontsGeometry, AreTahomaOfThirteenLogicalPixels)
{
    const LOGFONTW normal = Describe(CDialogFonts::Instance().Get(false));
    EXPECT_STREQ(L"Tahoma", normal.lfFaceName);
    EXPECT_EQ(Px(13), normal.lfHeight);
    EXPECT_EQ(400, normal.lfWeight);
    const LOGFONTW bold = Describe(CDialogFonts::Instance().Get(true));
    EXPECT_STREQ(L"Tahoma", bold.lfFaceName);
    EXPECT_EQ(Px(13), bold.lfHeight);
    EXPECT_EQ(700, bold.lfWeight);
}

TEST_F(DialogFonts, AreMadeOnceAndKept)
{
    const HFONT normal = CDialogFonts::Instance().Get(false);
    const HFONT bold = CDialogFonts::Instance().Get(true);
    EXPECT_NE(normal, bold);
    EXPECT_EQ(normal, CDialogFonts::Instance().Get(false));
    EXPECT_EQ(bold, CDialogFonts::Instance().Get(true));
}

TEST_F(DialogFonts, AllOtherFieldsAreZero)
{
    LOGFONTW expected = {};
    expected.lfHeight = 20;
    expected.lfWeight = 400;
    expected.lfCharSet = 2;
    lstrcpyW(expected.lfFaceName, L"Tahoma");
    const UniqueFont font(CreateFontFor(L"Tahoma", 20, 400, 2));
    const LOGFONTW actual = Describe(font.get());
    EXPECT_EQ(0, memcmp(&expected, &actual, offsetof(LOGFONTW, lfFaceName)));
    EXPECT_STREQ(L"Tahoma", actual.lfFaceName);
}

TEST_F(DialogFontsGeometry, ALanguageWithIntricateGlyphsGetsLargerFontsThatAreNeverBold)
{
    Translate(L"_LARGE_SMALL_FONTS|1\n");
    const LOGFONTW normal = Describe(CDialogFonts::Instance().Get(false));
    const LOGFONTW bold = Describe(CDialogFonts::Instance().Get(true));
    EXPECT_EQ(Px(14), normal.lfHeight);
    EXPECT_EQ(Px(14), bold.lfHeight);
    EXPECT_EQ(400, normal.lfWeight);
    EXPECT_EQ(400, bold.lfWeight);
}

TEST_F(DialogFonts, AnyOtherValueOfTheSwitchChangesNothing)
{
    for (const wchar_t* value : {L"0", L"11", L"yes", L" 1"})
    {
        Translate(std::wstring(L"_LARGE_SMALL_FONTS|") + value + L"\n");
        const UniqueFont font(CreateFontFor(L"Tahoma", 13, 700, 0));
        EXPECT_EQ(13, Describe(font.get()).lfHeight) << value;
        EXPECT_EQ(700, Describe(font.get()).lfWeight) << value;
    }
}

TEST_F(DialogFonts, TheExactFontIgnoresTheSwitch)
{
    Translate(L"_LARGE_SMALL_FONTS|1\n");
    const UniqueFont font(CreateFontExactly(L"Tahoma", 13, 700, 0));
    EXPECT_EQ(13, Describe(font.get()).lfHeight);
    EXPECT_EQ(700, Describe(font.get()).lfWeight);
}
