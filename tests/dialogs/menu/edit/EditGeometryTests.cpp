// Places and sizes of the three dialogs, on every size of screen and in every language.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/LanguageFile.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/TranslationFixture.h"

namespace
{

// The languages of the device, English without a file, and one whose translation asks for larger
// glyphs.
constexpr const char* kEnglish = "";
constexpr const char* kLarge = "large";

class EditGeometry : public EditFixture
{
protected:
    explicit EditGeometry(const std::string& language = kEnglish)
    {
        if (language == kLarge)
            texts = L"_LARGE_SMALL_FONTS|1\n";
        else if (language != kEnglish)
            texts = ReadLanguageFile(TAV_LANGUAGES, language);
        SetInstallFolder(registry, folder);
        // The editor is recognised by its English title; of two entries the later one counts.
        WriteTranslation(folder, texts + L"Customize Menu|Customize Menu\n");
    }

    std::wstring Translated(const std::wstring& text) const
    {
        const size_t entry = texts.find(L"\n" + text + L"|");
        if (entry == std::wstring::npos)
            return text;
        const size_t begin = entry + text.size() + 2;
        return texts.substr(begin, texts.find(L'\n', begin) - begin);
    }
    // Opens Edit Item for a node that is named by the user.
    void OpenItem(const wchar_t* path)
    {
        if (!dialog)
            Open();
        Select(path);
        PostCommand(dialog, CommandEdit);
        edit = run->WaitForDialog(Translated(L"Edit Item"));
        ASSERT_NE(nullptr, edit);
    }
    void OpenMenu() { OpenItem(L"My Menu"); }
    void OpenLink() { OpenItem(L"My Menu/Radio"); }
    void OpenIcons()
    {
        StartProcess(40);
        OpenMenu();
        PostCommand(edit, kChangeId);
        choice = run->WaitForDialog(Translated(L"Choose Icon"));
        ASSERT_NE(nullptr, choice);
        list = GetDlgItem(choice, kIconListId);
    }

    // Checks that a dialog's title fits into the band.
    static void ExpectTitleFits(HWND window)
    {
        EXPECT_LE(Px(8) + TextWidthOf(window), GetSystemMetrics(SM_CXSCREEN));
    }
    static SIZE ClientOf(HWND window)
    {
        RECT client = {};
        GetClientRect(window, &client);
        return {client.right, client.bottom};
    }
    // The height of a line in a control's font.
    static int LineHeightOf(HWND control)
    {
        const HDC dc = GetDC(control);
        const HGDIOBJ old =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
        TEXTMETRICW metrics = {};
        GetTextMetricsW(dc, &metrics);
        SelectObject(dc, old);
        ReleaseDC(control, dc);
        return static_cast<int>(metrics.tmHeight);
    }
    // Checks that a line of a control's text is not cut off on any side.
    void ExpectTextFits(int id, int margin) const
    {
        const SIZE client = ClientOf(Control(id));
        EXPECT_LE(TextWidthOf(Control(id)) + 2 * margin, client.cx) << id;
        EXPECT_LE(LineHeightOf(Control(id)), client.cy) << id;
    }
    void ExpectTextsFit() const
    {
        ExpectTextFits(216, 0);
        ExpectTextFits(218, 0);
        // Room for the button's edges.
        ExpectTextFits(kChangeId, Px(4));
        EXPECT_LE(LineHeightOf(Control(kNameId)), ClientOf(Control(kNameId)).cy);
    }
    int CentreOf(int id) const
    {
        const RECT rect = RectOf(Control(id));
        return static_cast<int>(rect.top + rect.bottom) / 2;
    }
    // Checks that a label stands beside its control: text is centred in neither.
    void ExpectBeside(int label, int control) const
    {
        EXPECT_LE(RectOf(Control(label)).right, RectOf(Control(control)).left);
        EXPECT_LE(std::abs(CentreOf(label) - CentreOf(control)), Px(3));
    }

    CTempFolder folder;
    std::wstring texts;
};

class EditGeometryIn : public EditGeometry, public testing::WithParamInterface<const char*>
{
protected:
    EditGeometryIn() : EditGeometry(GetParam()) {}
};

class EditGeometryInJapanese : public EditGeometry
{
protected:
    EditGeometryInJapanese() : EditGeometry("ja") {}

    // The font of a control of the open dialog, by height in logical pixels and weight.
    void ExpectFont(int id, int height, int weight) const
    {
        LOGFONTW font = {};
        const auto handle = reinterpret_cast<HFONT>(SendMessageW(Control(id), WM_GETFONT, 0, 0));
        ASSERT_NE(0, GetObjectW(handle, sizeof(font), &font)) << id;
        EXPECT_EQ(Px(height), font.lfHeight) << id;
        EXPECT_EQ(weight, font.lfWeight) << id;
    }
};

std::string NameOf(const testing::TestParamInfo<const char*>& info)
{
    return info.param == kEnglish ? "en" : info.param;
}

} // namespace

TEST_F(EditGeometry, TheDialogsFillTheScreenAboveTheirSoftKeys)
{
    OpenLink();
    ExpectFullScreen(edit);
    ExpectTitleBand();
    EndEdit(IDCANCEL);
    OpenIcons();
    ExpectFullScreen(edit);
    ExpectFullScreen(choice);
    ExpectTitleBand();
}

TEST_F(EditGeometry, LabelsStandBesideTheirControls)
{
    OpenLink();
    ExpectBeside(216, kNameId);
    ExpectBeside(217, kPathId);
    ExpectBeside(218, kIconId);
    EXPECT_LE(RectOf(Control(kIconId)).right, RectOf(Control(kChangeId)).left);
}

TEST_F(EditGeometry, AWholeIconFitsIntoThePreview)
{
    for (const wchar_t* path : {L"My Menu", L"My Menu/Radio"})
    {
        OpenItem(path);
        EXPECT_GE(ClientOf(Control(kIconId)).cx, Px(32));
        EXPECT_GE(ClientOf(Control(kIconId)).cy, Px(32));
        EndEdit(IDCANCEL);
    }
}

TEST_F(EditGeometry, TheIconsFillWhatTheTitleBandLeaves)
{
    OpenIcons();
    const RECT rect = RectOf(list);
    const RECT own = RectOf(choice);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(own.right, rect.right);
    EXPECT_EQ(own.bottom, rect.bottom);
    // Below the line, as close as dialog units can say.
    EXPECT_GE(rect.top, Px(24));
    EXPECT_LE(rect.top, Px(24) + Px(2));
}

TEST_F(EditGeometry, ATurnedScreenIsFilledAgain)
{
    OpenIcons();
    MoveWindow(choice, 0, 0, Px(200), Px(200), FALSE);
    SendMessageW(choice, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), RectOf(choice).right);
    EXPECT_EQ(RectOf(choice).right, RectOf(list).right);
    EXPECT_EQ(RectOf(choice).bottom, RectOf(list).bottom);
}

TEST_F(EditGeometryInJapanese, TextsAreFourteenPixelsHighAndNeverBold)
{
    OpenMenu();
    EXPECT_EQ(L"項目の編集", TextOf(edit));
    EXPECT_EQ(L"名前:", TextOf(Control(216)));
    ExpectFont(216, 14, FW_NORMAL);
    // Bold in other languages.
    EXPECT_EQ(L"変更...", TextOf(Control(kChangeId)));
    ExpectFont(kChangeId, 14, FW_NORMAL);
}

TEST_P(EditGeometryIn, TheControlsOfAMenuStandApartAndNoTextIsCut)
{
    OpenMenu();
    ExpectTitleFits(edit);
    EXPECT_EQ(5u, ControlsOf(edit).size());
    ExpectControlsApart(edit);
    ExpectTextsFit();
}

TEST_P(EditGeometryIn, TheControlsOfALinkStandApartAndNoTextIsCut)
{
    OpenLink();
    EXPECT_EQ(7u, ControlsOf(edit).size());
    ExpectControlsApart(edit);
    ExpectTextsFit();
    ExpectTextFits(217, 0);
    EXPECT_LE(LineHeightOf(Control(kPathId)), ClientOf(Control(kPathId)).cy);
}

TEST_P(EditGeometryIn, TheTitleOfChooseIconIsNotCut)
{
    OpenIcons();
    ExpectTitleFits(choice);
}

INSTANTIATE_TEST_SUITE_P(All, EditGeometryIn, testing::Values(kEnglish, "de", "ja", "ru", kLarge),
                         NameOf);
