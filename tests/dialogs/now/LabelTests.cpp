// Labels and the other texts of the dialog in another language.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/TranslationFixture.h"

namespace
{

constexpr const wchar_t* kGerman = L"Customize Now Screen|Jetzt-Ansicht anpassen\n"
                                   L"No plugins installed|Keine Zusätze installiert\n"
                                   L"Checked items will be used on the Now Screen instead of "
                                   L"default ones.|Nur Angekreuztes erscheint.\n"
                                   L"Done|Fertig\n"
                                   L"Cancel|Abbrechen\n"
                                   L"Diary|Tagebuch\n"
                                   L" (calendar)| (Kalender)\n"
                                   L" (weather)| (Wetter)\n"
                                   L"(email)|(without the blank it is another text)\n";

class NowLabels : public NowFixture
{
protected:
    void OpenIn(const std::wstring& entries, const std::wstring& title = kNowTitle)
    {
        WriteTranslation(folder, entries);
        SetInstallFolder(registry, folder);
        Open(title);
    }
    void OpenInGerman() { OpenIn(kGerman, L"Jetzt-Ansicht anpassen"); }
    void AddBuiltIn(const std::wstring& plugin, const std::wstring& text, DWORD kind)
    {
        registry.Add(plugin, text, kind);
        registry.Set(plugin, L"BuildIn", 1);
    }

    CTempFolder folder;
};

} // namespace

TEST_F(NowLabels, TheShellsOwnPluginsAreTranslated)
{
    AddBuiltIn(L"A", L"Diary", kEmail);
    OpenInGerman();
    EXPECT_EQ((Labels{L"Tagebuch (email)"}), AllLabels());
}

TEST_F(NowLabels, OtherPluginsAreShownAsStored)
{
    registry.Add(L"A", L"Diary", kEmail);
    registry.Add(L"B", L"Diary", kProfile);
    registry.Set(L"B", L"BuildIn", DWORD{0});
    OpenInGerman();
    EXPECT_EQ((Labels{L"Diary (email)", L"Diary (profile)"}), AllLabels());
}

TEST_F(NowLabels, AnyNumberButZeroMakesAPluginTheShellsOwn)
{
    registry.Add(L"A", L"Diary", kEmail);
    registry.Set(L"A", L"BuildIn", 0x80000000);
    OpenInGerman();
    EXPECT_EQ((Labels{L"Tagebuch (email)"}), AllLabels());
}

TEST_F(NowLabels, TheNameOfTheKindIsTranslatedForEveryPlugin)
{
    AddBuiltIn(L"A", L"Diary", kCalendar);
    registry.Add(L"B", L"Sun", kWeather);
    OpenInGerman();
    EXPECT_EQ((Labels{L"Sun (Wetter)", L"Tagebuch (Kalender)"}), AllLabels());
}

TEST_F(NowLabels, RowsAreSortedByWhatIsShown)
{
    AddBuiltIn(L"A", L"Diary", kEmail);
    registry.Add(L"B", L"Mail", kEmail);
    OpenInGerman();
    EXPECT_EQ((Labels{L"Mail (email)", L"Tagebuch (email)"}), AllLabels());
}

TEST_F(NowLabels, TheTextsOfTheDialogAreTranslated)
{
    OpenInGerman();
    EXPECT_EQ(L"Keine Zusätze installiert", TextOf(GetDlgItem(dialog, kEmptyTextId)));
    EXPECT_EQ(L"Nur Angekreuztes erscheint.", TextOf(GetDlgItem(dialog, kExplanationId)));
    EXPECT_EQ(L"Fertig", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Abbrechen", SoftKeyText(dialog, 1));
}

TEST_F(NowLabels, WithoutATranslationEverythingIsEnglish)
{
    AddBuiltIn(L"A", L"Diary", kCalendar);
    Open();
    EXPECT_EQ((Labels{L"Diary (calendar)"}), AllLabels());
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(dialog, 1));
}

TEST_F(NowLabels, ALongBuiltInTextIsCutAt1023Characters)
{
    AddBuiltIn(L"A", std::wstring(1100, L'a'), kEmail);
    AddBuiltIn(L"B", std::wstring(1023, L'b'), kEmail);
    Open();
    EXPECT_EQ(
        (Labels{std::wstring(1023, L'a') + L" (email)", std::wstring(1023, L'b') + L" (email)"}),
        AllLabels());
}

TEST_F(NowLabels, ALongTranslationIsCutAt1023Characters)
{
    AddBuiltIn(L"A", L"Diary", kEmail);
    OpenIn(L"Diary|" + std::wstring(5000, L'x') + L"\n");
    EXPECT_EQ((Labels{std::wstring(1023, L'x') + L" (email)"}), AllLabels());
}

TEST_F(NowLabels, ALongNameOfAKindIsSurvived)
{
    registry.Add(L"A", L"Sun", kWeather);
    OpenIn(L" (weather)|" + std::wstring(5000, L'x') + L"\n");
    EXPECT_EQ((Labels{L"Sun" + std::wstring(1023, L'x')}), AllLabels());
}

TEST_F(NowLabels, PlaceholdersInATextAreNoPlaceholders)
{
    registry.Add(L"A", L"%s%n%1000000d", kEmail);
    Open();
    EXPECT_EQ((Labels{L"%s%n%1000000d (email)"}), AllLabels());
}

TEST_F(NowLabels, TheEmptyTextIsBoldUnlessTheLanguageNeedsLargeGlyphs)
{
    const auto fontOf = [this](int control)
    {
        LOGFONTW font = {};
        const auto handle =
            reinterpret_cast<HFONT>(SendDlgItemMessageW(dialog, control, WM_GETFONT, 0, 0));
        GetObjectW(handle, sizeof(font), &font);
        return font;
    };
    Open();
    EXPECT_EQ(FW_BOLD, fontOf(kEmptyTextId).lfWeight);
    EXPECT_STREQ(L"Tahoma", fontOf(kEmptyTextId).lfFaceName);
    EXPECT_EQ(13, fontOf(kEmptyTextId).lfHeight);
    EXPECT_EQ(FW_NORMAL, fontOf(kExplanationId).lfWeight);
    EXPECT_EQ(FW_NORMAL, fontOf(kListId).lfWeight);
    Cancel();
    module.reset();
    OpenIn(L"_LARGE_SMALL_FONTS|1\n");
    EXPECT_EQ(FW_NORMAL, fontOf(kEmptyTextId).lfWeight);
    EXPECT_EQ(14, fontOf(kEmptyTextId).lfHeight);
}
