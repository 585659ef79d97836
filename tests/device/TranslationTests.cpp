// The device's languages: every text of the module's resources, of the shell and of the built-in
// menu has a translation, with the same placeholders, in an encoding that the module reads. What a
// program shows is asked of the program here, not of its sources, from which the translators'
// template is made.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "device/SampleMenu.h"
#include "device/SamplePlugins.h"
#include "device/Texts.h"
#include "frame/Localizer.h"
#include "frame/TranslationParser.h"
#include "tests/device/ModuleTexts.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LanguageFile.h"

extern "C" void* __imp_MultiByteToWideChar;

namespace
{

using Translations = std::map<std::wstring, std::wstring>;

constexpr const wchar_t* kLargeSmallFonts = L"_LARGE_SMALL_FONTS";

decltype(&MultiByteToWideChar) g_convert;

// The system of a handheld that speaks the language.
int WINAPI ConvertCyrillic(UINT codePage, DWORD flags, const char* bytes, int size, wchar_t* text,
                           int units)
{
    return g_convert(codePage == CP_ACP ? kAnsiCodePage : codePage, flags, bytes, size, text,
                     units);
}

// What a file in the source tree says, read by the module's own parser.
Translations EntriesOf(const std::string& language)
{
    std::wstring text = ReadLanguageFile(TAV_LANGUAGES, language);
    Translations entries;
    for (const TranslationEntry& entry : ParseTranslation(text.data(), text.data() + text.size()))
        EXPECT_TRUE(entries.emplace(entry.English, entry.Translation).second)
            << "twice: " << entry.English;
    return entries;
}

// Every text that goes through the translator.
std::set<std::wstring> AllTexts()
{
    std::set<std::wstring> texts = TextsOfModule(L"TavLumenarDialogs.dll");
    EXPECT_GE(texts.size(), 20u) << "the module's resources were not found";
    for (const wchar_t* text : texts::kAll)
        texts.insert(text);
    for (const sample::MenuKey& key : sample::MenuKeys())
        if (key.Text && key.Where != sample::Layer::Customised)
            texts.insert(key.Text);
    for (const sample::PluginKey& plugin : sample::PluginKeys())
        if (plugin.BuiltIn == 1 && *plugin.Text)
            texts.insert(plugin.Text);
    return texts;
}

std::vector<std::wstring> Placeholders(const std::wstring& text)
{
    std::vector<std::wstring> found;
    for (size_t i = text.find(L'%'); i != std::wstring::npos; i = text.find(L'%', i + 1))
        found.push_back(text.substr(i, 2));
    return found;
}

// What a text looks like in the dialogs' face, as rows of pixels.
std::vector<COLORREF> PictureOf(const wchar_t* text)
{
    constexpr int kSide = 20;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateBitmap(kSide, kSide, 1, 32, nullptr);
    const HFONT font = CreateFontW(14, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    const HGDIOBJ oldBitmap = SelectObject(dc, bitmap);
    const HGDIOBJ oldFont = SelectObject(dc, font);
    PatBlt(dc, 0, 0, kSide, kSide, WHITENESS);
    TextOutW(dc, 1, 1, text, lstrlenW(text));
    std::vector<COLORREF> pixels;
    for (int i = 0; i < kSide * kSide; ++i)
        pixels.push_back(GetPixel(dc, i % kSide, i / kSide));
    SelectObject(dc, oldFont);
    SelectObject(dc, oldBitmap);
    DeleteObject(font);
    DeleteObject(bitmap);
    DeleteDC(dc);
    return pixels;
}

class LanguageFile : public testing::TestWithParam<std::string>
{
};

} // namespace

TEST_P(LanguageFile, EveryTextHasATranslation)
{
    const Translations entries = EntriesOf(GetParam());
    for (const std::wstring& text : AllTexts())
        EXPECT_EQ(1u, entries.count(text)) << text;
}

TEST_P(LanguageFile, PlaceholdersAreTheSameInTheTranslation)
{
    for (const auto& entry : EntriesOf(GetParam()))
        EXPECT_EQ(Placeholders(entry.first), Placeholders(entry.second)) << entry.first;
}

TEST_P(LanguageFile, TheTranslatorReadsEveryEntry)
{
    g_convert = MultiByteToWideChar;
    const CImportPatch cyrillic(&__imp_MultiByteToWideChar, ConvertCyrillic);
    CTavLocalizerWTL localizer;
    ASSERT_TRUE(localizer.LoadFile(LanguageFilePath(TAV_LANGUAGES, GetParam()).c_str()));
    const Translations entries = EntriesOf(GetParam());
    EXPECT_EQ(entries.size(), localizer.Map.Count);
    EXPECT_GE(entries.size(), 150u);
    for (const auto& entry : entries)
    {
        EXPECT_EQ(entry.second, localizer.TranslateText(entry.first.c_str()));
        EXPECT_EQ(entry.second, localizer.TranslateToString(entry.first.c_str())) << "is cut";
    }
}

INSTANTIATE_TEST_SUITE_P(All, LanguageFile, testing::Values("de", "ja", "pseudo", "ru"),
                         [](const auto& suite) { return suite.param; });

TEST(LanguageFiles, OnlyRussianIsInAnAnsiCodePage)
{
    for (const char* language : {"de", "ja", "pseudo", "ru"})
    {
        bool isAnsi = false;
        ReadLanguageFile(TAV_LANGUAGES, language, &isAnsi);
        EXPECT_EQ(language == std::string("ru"), isAnsi) << language;
    }
}

TEST(LanguageFiles, OnlyJapaneseAsksForLargerLetters)
{
    for (const char* language : {"de", "pseudo", "ru"})
        EXPECT_EQ(0u, EntriesOf(language).count(kLargeSmallFonts)) << language;
    EXPECT_EQ(L"1", EntriesOf("ja")[kLargeSmallFonts]);
}

TEST(LanguageFiles, PseudoTextsAreBracketedAccentedAndTwoFifthsLonger)
{
    for (const auto& [english, translation] : EntriesOf("pseudo"))
    {
        const size_t first = english.find_first_not_of(L' ');
        ASSERT_LT(first, translation.size());
        EXPECT_EQ(L'[', translation[first]) << translation;
        EXPECT_EQ(L']', translation.back()) << translation;
        EXPECT_GE(5 * translation.size(), 7 * english.size()) << translation;
        EXPECT_NE(std::wstring::npos, translation.find_first_of(L"áéíöúýÅÉÎÖÜÝ")) << translation;
    }
}

TEST(LanguageGlyphs, JapaneseAndCyrillicLettersAreDrawnInsteadOfBoxes)
{
    EXPECT_NE(PictureOf(L"\u65E5"), PictureOf(L"\u672C"));
    EXPECT_NE(PictureOf(L"\u30A2"), PictureOf(L"\u30A4"));
    EXPECT_NE(PictureOf(L"\u0414"), PictureOf(L"\u0416"));
    // Letters that no face has are all the same box.
    EXPECT_EQ(PictureOf(L"\uE123"), PictureOf(L"\uE124"));
}
