#include "frame/Localizer.h"

#include "frame/Module.h"
#include "tests/frame/TranslationFixture.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kHello = 100;
constexpr UINT kNotTranslated = 101;
constexpr UINT kMissing = 999;

class Localizer : public testing::Test
{
protected:
    Localizer() { SetModuleInstance(GetModuleHandleW(nullptr)); }

    CTavLocalizerWTL localizer;
};

// A buffer with a mark behind each place that may be written.
struct Marked
{
    Marked() { std::fill(std::begin(text), std::end(text), L'#'); }
    wchar_t text[16];
};

TEST_F(Localizer, IsEmptyAtFirst)
{
    EXPECT_EQ(nullptr, localizer.Text);
    EXPECT_EQ(10u, localizer.Map.InitialBits);
    EXPECT_EQ(0u, localizer.Map.Bits);
    EXPECT_EQ(GetModuleHandleW(nullptr), localizer.Module);
}

TEST_F(Localizer, TheFieldsStandInTheirOrder)
{
    EXPECT_LT(static_cast<void*>(&localizer.Text), static_cast<void*>(&localizer.Map));
    EXPECT_LT(static_cast<void*>(&localizer.Map), static_cast<void*>(&localizer.Module));
    EXPECT_LT(static_cast<void*>(&localizer.Map.InitialBits),
              static_cast<void*>(&localizer.Map.Bits));
    EXPECT_LT(static_cast<void*>(&localizer.Map.Bits), static_cast<void*>(&localizer.Map.Count));
    EXPECT_LT(static_cast<void*>(&localizer.Map.Count), static_cast<void*>(&localizer.Map.Table));
}

TEST_F(Localizer, LookupFindsExactlyTheText)
{
    LoadTexts(localizer, L"Done|Fertig\n");
    wchar_t* translation = nullptr;
    EXPECT_TRUE(localizer.Lookup(L"Done", translation));
    EXPECT_STREQ(L"Fertig", translation);
    EXPECT_FALSE(localizer.Lookup(L"done", translation));
    EXPECT_FALSE(localizer.Lookup(L"Don", translation));
    EXPECT_FALSE(localizer.Lookup(L"", translation));
    EXPECT_FALSE(localizer.Lookup(nullptr, translation));
}

TEST_F(Localizer, LookupFindsNothingWithoutAFile)
{
    wchar_t* translation = nullptr;
    EXPECT_FALSE(localizer.Lookup(L"Done", translation));
}

TEST_F(Localizer, ATextWithoutTranslationIsReturnedItself)
{
    LoadTexts(localizer, L"Done|Fertig\n");
    const wchar_t* const text = L"Cancel";
    EXPECT_EQ(text, localizer.TranslateText(text));
    EXPECT_STREQ(L"Fertig", localizer.TranslateText(L"Done"));
}

TEST_F(Localizer, NoTextGivesTheEmptyText)
{
    EXPECT_STREQ(L"", localizer.TranslateText(nullptr));
    EXPECT_STREQ(L"", localizer.TranslateText(L""));
}

TEST_F(Localizer, ATextWithAnEmptyTranslationIsShownUnchanged)
{
    LoadTexts(localizer, L"Done|\n");
    EXPECT_STREQ(L"Done", localizer.TranslateText(L"Done"));
    wchar_t empty[] = L"";
    localizer.Map.Store({L"Cancel"}, empty);
    EXPECT_STREQ(L"Cancel", localizer.TranslateText(L"Cancel"));
}

TEST_F(Localizer, ABlankBeforeTheEnglishTextBelongsToTheKey)
{
    LoadTexts(localizer, L" Done|Fertig\n");
    EXPECT_STREQ(L"Done", localizer.TranslateText(L"Done"));
    EXPECT_STREQ(L"Fertig", localizer.TranslateText(L" Done"));
}

TEST_F(Localizer, EscapesBecomeRealLineFeedsAndBars)
{
    LoadTexts(localizer, L"a\\nb|c\\nd\nx\\|y|z\n");
    EXPECT_STREQ(L"c\nd", localizer.TranslateText(L"a\nb"));
    EXPECT_STREQ(L"z", localizer.TranslateText(L"x|y"));
}

TEST_F(Localizer, OfTwoLinesWithTheSameKeyTheSecondWins)
{
    LoadTexts(localizer, L"Done|erst\nDone|dann\n");
    EXPECT_STREQ(L"dann", localizer.TranslateText(L"Done"));
}

TEST_F(Localizer, TheBufferGetsTheTranslationAndItsLength)
{
    LoadTexts(localizer, L"Done|Fertig\n");
    Marked buffer;
    EXPECT_EQ(6, localizer.TranslateTextToBuffer(L"Done", buffer.text, 16));
    EXPECT_STREQ(L"Fertig", buffer.text);
    EXPECT_EQ(L'#', buffer.text[7]);
}

TEST_F(Localizer, TheBufferGetsAsMuchAsItHolds)
{
    Marked buffer;
    EXPECT_EQ(3, localizer.TranslateTextToBuffer(L"Cancel", buffer.text, 4));
    EXPECT_STREQ(L"Can", buffer.text);
    EXPECT_EQ(L'#', buffer.text[4]);
    EXPECT_EQ(0, localizer.TranslateTextToBuffer(L"Cancel", buffer.text, 1));
    EXPECT_STREQ(L"", buffer.text);
}

TEST_F(Localizer, WithoutARealBufferNothingIsWritten)
{
    Marked buffer;
    EXPECT_EQ(0, localizer.TranslateTextToBuffer(L"Done", buffer.text, 0));
    EXPECT_EQ(0, localizer.TranslateTextToBuffer(L"Done", buffer.text, -1));
    EXPECT_EQ(L'#', buffer.text[0]);
    EXPECT_EQ(0, localizer.TranslateTextToBuffer(L"Done", nullptr, 10));
}

TEST_F(Localizer, NoTextGivesTheEmptyTextInABuffer)
{
    Marked buffer;
    EXPECT_EQ(0, localizer.TranslateTextToBuffer(nullptr, buffer.text, 16));
    EXPECT_STREQ(L"", buffer.text);
}

TEST_F(Localizer, AStringIsCutAt1023Characters)
{
    LoadTexts(localizer, L"Done|" + std::wstring(2000, L'x') + L"\nCancel|Abbrechen");
    EXPECT_EQ(std::wstring(1023, L'x'), localizer.TranslateToString(L"Done"));
    EXPECT_EQ(std::wstring(1023, L'y'),
              localizer.TranslateToString(std::wstring(1500, L'y').c_str()));
    EXPECT_EQ(L"Abbrechen", localizer.TranslateToString(L"Cancel"));
    EXPECT_EQ(L"", localizer.TranslateToString(nullptr));
}

TEST_F(Localizer, AStringResourceIsTranslated)
{
    LoadTexts(localizer, L"Hello|Hallo\n");
    Marked buffer;
    EXPECT_EQ(5, localizer.LoadString(kHello, buffer.text, 16));
    EXPECT_STREQ(L"Hallo", buffer.text);
    EXPECT_EQ(L"Hallo", localizer.LoadTranslatedString(kHello));
}

TEST_F(Localizer, AStringResourceWithoutTranslationStaysEnglish)
{
    LoadTexts(localizer, L"Hello|Hallo\n");
    Marked buffer;
    EXPECT_EQ(14, localizer.LoadString(kNotTranslated, buffer.text, 16));
    EXPECT_STREQ(L"Not translated", buffer.text);
    EXPECT_EQ(L"Not translated", localizer.LoadTranslatedString(kNotTranslated));
}

TEST_F(Localizer, AMissingStringResourceIsEmpty)
{
    Marked buffer;
    EXPECT_EQ(0, localizer.LoadString(kMissing, buffer.text, 16));
    EXPECT_EQ(L"", localizer.LoadTranslatedString(kMissing));
}

TEST_F(Localizer, T12ATranslationLongerThanTheBufferIsCutAndTerminated)
{
    LoadTexts(localizer, L"Hello|0123456789\n");
    Marked buffer;
    EXPECT_EQ(5, localizer.LoadString(kHello, buffer.text, 6));
    EXPECT_STREQ(L"01234", buffer.text);
    EXPECT_EQ(L'#', buffer.text[6]);
}

TEST_F(Localizer, T12ATranslationAsLongAsTheBufferIsCutAndTerminated)
{
    LoadTexts(localizer, L"Hello|Bonjour!\n");
    Marked buffer;
    EXPECT_EQ(7, localizer.LoadString(kHello, buffer.text, 8));
    EXPECT_STREQ(L"Bonjour", buffer.text);
    EXPECT_EQ(L'#', buffer.text[8]);
}

TEST_F(Localizer, TheRestOfTheBufferBehindATranslationIsZeroed)
{
    LoadTexts(localizer, L"Hello|Hi\n");
    Marked buffer;
    EXPECT_EQ(2, localizer.LoadString(kHello, buffer.text, 10));
    EXPECT_EQ(std::wstring(8, L'\0'), std::wstring(buffer.text + 2, 8));
    EXPECT_EQ(L'#', buffer.text[10]);
}

TEST_F(Localizer, AStringResourceThatTheBufferCutsIsLookedUpAsItWasCut)
{
    LoadTexts(localizer, L"Hello|Hallo\nHel|cut\n");
    Marked buffer;
    EXPECT_EQ(3, localizer.LoadString(kHello, buffer.text, 4));
    EXPECT_STREQ(L"cut", buffer.text);
}

TEST_F(Localizer, AStringResourceNeedsARealBuffer)
{
    Marked buffer;
    EXPECT_EQ(0, localizer.LoadString(kHello, buffer.text, 0));
    EXPECT_EQ(0, localizer.LoadString(kHello, buffer.text, -5));
    EXPECT_EQ(0, localizer.LoadString(kHello, nullptr, 16));
    EXPECT_EQ(L'#', buffer.text[0]);
}

TEST_F(Localizer, ATranslatedStringResourceIsCutAt1023Characters)
{
    LoadTexts(localizer, L"Hello|" + std::wstring(3000, L'x') + L"\n");
    EXPECT_EQ(std::wstring(1023, L'x'), localizer.LoadTranslatedString(kHello));
}

TEST_F(Localizer, TheModuleHasOneTranslator)
{
    CTavLocalizerWTL& first = GetLocalizer();
    EXPECT_EQ(&first, &GetLocalizer());
    EXPECT_EQ(10u, first.Map.InitialBits);
}

} // namespace
