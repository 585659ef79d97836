// The preview of the icon in the Edit Item dialogs: what it shows, what the launcher-menu process
// is asked for it, and what a change of the icon does to it.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Wait.h"
#include "tests/support/Screen.h"

namespace
{

constexpr const wchar_t* kMaps = L"Programs\\User 3";
constexpr const wchar_t* kMapsFile = L"\\Program Files\\maps.exe";

using Numbers = std::vector<uint32_t>;

class Preview : public EditFixture
{
protected:
    // Opens Edit Item for the link whose icon has that number, or is its file's own for 0.
    void OpenLink(DWORD number, const wchar_t* imagePath = kMapsFile)
    {
        if (number)
            registry.SetCustom(kMaps, L"Image", number);
        registry.SetText((std::wstring(kCustomMenu) + L"\\" + kMaps).c_str(), L"ImagePath",
                         imagePath);
        OpenEdit(L"Programs/Maps");
    }
    void OpenMenu(DWORD number)
    {
        registry.SetCustom(L"User 1", L"Image", number);
        OpenEdit(L"My Menu");
    }
    // The numbers that were asked for since a request.
    Numbers AskedSince(size_t request) const
    {
        Numbers numbers = Asked(kDrawNumber);
        numbers.erase(numbers.begin(), numbers.begin() + static_cast<ptrdiff_t>(request));
        return numbers;
    }
    // What a whole request consists of, in 32-bit fields behind the path.
    struct Tail
    {
        uint32_t Number;
        uint32_t Dc;
        RECT Rect;
    };
    static void Append(std::vector<uint8_t>& bytes, uint32_t value)
    {
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<uint8_t>(value >> shift));
    }
    static std::vector<uint8_t> Record(uint32_t kind, const std::wstring& path, const Tail& tail)
    {
        std::vector<uint8_t> bytes;
        Append(bytes, kind);
        for (const wchar_t unit : path)
        {
            bytes.push_back(static_cast<uint8_t>(unit));
            bytes.push_back(static_cast<uint8_t>(unit >> 8));
        }
        bytes.resize(kNumberField);
        Append(bytes, tail.Number);
        Append(bytes, tail.Dc);
        for (const LONG edge : {tail.Rect.left, tail.Rect.top, tail.Rect.right, tail.Rect.bottom})
            Append(bytes, static_cast<uint32_t>(edge));
        return bytes;
    }
    // Checks the one request for the preview, apart from the device context, which is its sender's.
    void ExpectOnlyRequest(uint32_t kind, const std::wstring& path, uint32_t number)
    {
        const auto requests = process->Requests();
        ASSERT_EQ(1u, requests.size());
        EXPECT_EQ(6000u, requests[0].code);
        EXPECT_EQ(0u, requests[0].wParam);
        RECT client = {};
        GetClientRect(Control(kIconId), &client);
        EXPECT_EQ(Record(kind, path, {number, requests[0].Field(528), client}), requests[0].bytes);
        EXPECT_NE(0u, requests[0].Field(528));
    }
    // Checks what the preview shows after Choose Icon ended with a place chosen.
    void ExpectAfterChoice(int place, COLORREF colour)
    {
        Choose(place);
        ExpectPreview(colour);
    }
};

} // namespace

TEST_F(Preview, OfAMenuAsksForItsNumberOverTheWholeControl)
{
    StartProcess();
    OpenMenu(109);
    ExpectPreview(ColourOfIcon(109));
    ExpectOnlyRequest(kDrawNumber, L"", 109);
}

TEST_F(Preview, OfALinkAsksForItsNumberOverTheWholeControl)
{
    StartProcess(40, true);
    OpenLink(112);
    ExpectPreview(ColourOfIcon(112));
    ExpectOnlyRequest(kDrawNumber, L"", 112);
}

TEST_F(Preview, OfALinkWithoutANumberAsksForItsFilesImage)
{
    StartProcess(40, true);
    OpenLink(0);
    ExpectPreview(kFileColour);
    ExpectOnlyRequest(kDrawFile, kMapsFile, 0);
}

TEST_F(Preview, OfALinkWithNeitherIsWhiteAndAsksForNothing)
{
    StartProcess(40, true);
    OpenLink(0, L"");
    ExpectPreview(kWhite);
    EXPECT_TRUE(process->Requests().empty());
}

TEST_F(Preview, DrawsAFileThatTheProcessCannot)
{
    StartProcess();
    OpenLink(0, L"\\windows");
    EXPECT_FALSE(IsPreviewWhite());
}

TEST_F(Preview, OfAMissingFileIsWhite)
{
    OpenLink(0, L"\\nowhere\\at all.exe");
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
}

TEST_F(Preview, AsksForAnyNumberThatTheRegistryHas)
{
    StartProcess();
    OpenMenu(7);
    ExpectPreview(kWhite);
    ExpectOnlyRequest(kDrawNumber, L"", 7);
}

TEST_F(Preview, ShowsAnIconChosenForAMenu)
{
    StartProcess();
    OpenMenu(109);
    ExpectAfterChoice(4, ColourOfIcon(104));
}

TEST_F(Preview, ShowsAnIconChosenForALink)
{
    StartProcess(40, true);
    OpenLink(0);
    ExpectAfterChoice(4, ColourOfIcon(104));
    ExpectAfterChoice(5, ColourOfIcon(105));
}

TEST_F(Preview, StaysWhenNothingIsChosenForAMenu)
{
    StartProcess();
    OpenMenu(109);
    ExpectAfterChoice(kNothing, ColourOfIcon(109));
    EndEdit(IDOK);
    EXPECT_EQ(109u, registry.CustomDword(L"User 1", L"Image"));
}

TEST_F(Preview, OfALinkShowsItsFilesImageAgainWhenNothingOrThatIsChosen)
{
    StartProcess(10, true);
    for (const int place : {kNothing, 10})
    {
        OpenLink(109);
        ExpectPreview(ColourOfIcon(109));
        ExpectAfterChoice(place, kFileColour);
        EndEdit(IDCANCEL);
    }
}

TEST_F(Preview, OfALinkWithoutFileImageKeepsThePictureWhenNothingIsChosen)
{
    StartProcess();
    OpenLink(109, L"");
    ExpectAfterChoice(kNothing, ColourOfIcon(109));
    EndEdit(IDOK);
    EXPECT_FALSE(registry.CustomExists(kMaps, L"Image"));
}

TEST_F(Preview, StaysWhenTheChoiceIsCancelled)
{
    StartProcess();
    OpenMenu(109);
    OpenChoice();
    SelectPlace(4);
    EndChoice(IDCANCEL);
    ExpectPreview(ColourOfIcon(109));
    EndEdit(IDOK);
    EXPECT_EQ(109u, registry.CustomDword(L"User 1", L"Image"));
}

TEST_F(Preview, AsksOnceForEachIconThatItShows)
{
    StartProcess(10);
    OpenMenu(104);
    ExpectPreview(ColourOfIcon(104));
    RedrawWindow(Control(kIconId), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(Numbers{104}, Asked(kDrawNumber));
    // Eleven of them are Choose Icon's.
    ExpectAfterChoice(6, ColourOfIcon(106));
    EXPECT_EQ(Numbers{106}, AskedSince(12));
}

TEST_F(Preview, AForgedSizeMessageAsksAnewForTheRealSize)
{
    StartProcess();
    OpenMenu(104);
    ExpectPreview(ColourOfIcon(104));
    SendMessageW(Control(kIconId), WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 1));
    UpdateWindow(Control(kIconId));
    ExpectPreview(ColourOfIcon(104));
    const auto requests = process->Requests();
    ASSERT_EQ(2u, requests.size());
    const RECT first = requests[0].Rect();
    const RECT second = requests[1].Rect();
    EXPECT_TRUE(EqualRect(&first, &second));
}

TEST_F(Preview, OfAnotherSizeIsDrawnInThatSize)
{
    StartProcess();
    OpenMenu(104);
    ExpectPreview(ColourOfIcon(104));
    SetWindowPos(Control(kIconId), nullptr, 0, 0, 12, 14, SWP_NOMOVE | SWP_NOZORDER);
    UpdateWindow(Control(kIconId));
    ExpectPreview(ColourOfIcon(104));
    const RECT rect = process->Requests().back().Rect();
    EXPECT_EQ(12, rect.right);
    EXPECT_EQ(14, rect.bottom);
}
