// The picker in another language.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/SoftKeys.h"

namespace
{

class CityLanguage : public CityFixture
{
protected:
    void OpenIn(const std::wstring& entries, const std::wstring& title)
    {
        WriteTranslation(folder, entries);
        Call();
        dialog = run->WaitForDialog(title);
        ASSERT_NE(nullptr, dialog);
        FindControls();
    }
};

} // namespace

TEST_F(CityLanguage, TheTitleAndTheSoftKeysAreTranslated)
{
    OpenIn(L"Select City|Stadt wählen\nDone|Fertig\nCancel|Abbrechen\n", L"Stadt wählen");
    EXPECT_EQ(L"Fertig", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Abbrechen", SoftKeyText(dialog, 1));
}

TEST_F(CityLanguage, WithoutAFileEverythingIsEnglish)
{
    Open();
    EXPECT_EQ(L"Select City", TextOf(dialog));
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(dialog, 1));
}

TEST_F(CityLanguage, CitiesAndAreasAreNotTranslated)
{
    OpenIn(L"London|Londres\nEngland|Angleterre\n", L"Select City");
    EXPECT_EQ(L"London", CellText(0, 0));
    EXPECT_EQ(L"England", CellText(0, 1));
}

TEST_F(CityLanguage, TheTranslationMayMakeTheFontsLarger)
{
    OpenIn(L"_LARGE_SMALL_FONTS|1\n", L"Select City");
    for (const HWND control : {search, list})
    {
        LOGFONTW font = {};
        const auto handle = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
        GetObjectW(handle, sizeof(font), &font);
        EXPECT_EQ(14, font.lfHeight);
        EXPECT_EQ(400, font.lfWeight);
    }
}

TEST_F(CityLanguage, TheFontIsTahoma)
{
    Open();
    for (const HWND control : {search, list})
    {
        LOGFONTW font = {};
        const auto handle = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
        GetObjectW(handle, sizeof(font), &font);
        EXPECT_STREQ(L"Tahoma", font.lfFaceName);
        EXPECT_EQ(13, font.lfHeight);
    }
}
