// The icon preview: what it shows, and when it asks for a new picture.
#include "ui/GlobalImageCtlr.h"

#include "tests/support/ImportPatch.h"
#include "tests/ui/DialogFixture.h"
#include "tests/ui/IconFixture.h"

#include <shellapi.h>

namespace
{

constexpr int kWidth = 40;
constexpr int kHeight = 36;

HWND CreateStatic(HWND parent)
{
    return CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 10, 10, kWidth, kHeight,
                           parent, nullptr, nullptr, nullptr);
}

decltype(&CreateDIBSection) g_createSection;
int g_bitmaps;
HBITMAP WINAPI CountBitmap(HDC dc, const BITMAPINFO* info, UINT use, void** bits, HANDLE section,
                           DWORD offset)
{
    ++g_bitmaps;
    EXPECT_EQ(16, info->bmiHeader.biBitCount);
    return g_createSection(dc, info, use, bits, section, offset);
}
HBITMAP WINAPI RefuseBitmap(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

// A control in a window, and a process that fills icon 100 + n with green + n.
class GlobalImage : public testing::Test
{
protected:
    GlobalImage()
    {
        SetCurrentDirectoryW(L"C:\\");
        UpdateWindow(m_parent.get());
        EXPECT_TRUE(image.SubclassWindow(control));
    }

    void StartProcess(LRESULT answer = 1)
    {
        process = std::make_unique<CImageProcess>(
            [answer](const ImageProcessRequest& request)
            {
                if (answer)
                    FillRectOf(request, request.Field(0) == 2 ? kIconGreen : kIconBlue);
                return answer;
            });
    }
    size_t Requests() { return process->Requests().size(); }

    // Paints what is to be painted now, and all of it.
    void Paint() { UpdateWindow(control); }
    void Repaint() { RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    COLORREF Pixel(int x, int y)
    {
        const HDC dc = GetDC(control);
        const COLORREF colour = GetPixel(dc, x, y);
        ReleaseDC(control, dc);
        return colour;
    }
    void ExpectAll(COLORREF colour)
    {
        for (const int x : {0, kWidth / 2, kWidth - 1})
            for (const int y : {0, kHeight / 2, kHeight - 1})
                EXPECT_EQ(colour, Pixel(x, y)) << x << "," << y;
    }

    std::unique_ptr<CImageProcess> process;

private:
    UniqueWindow m_parent{CreateWindowExW(WS_EX_TOPMOST, L"Static", L"", WS_POPUP | WS_VISIBLE, 0,
                                          0, 200, 200, nullptr, nullptr, nullptr, nullptr)};

protected:
    HWND control = CreateStatic(m_parent.get());
    CGlobalImageCtlr image;
};

} // namespace

TEST_F(GlobalImage, IsWhiteWithoutAnIcon)
{
    StartProcess();
    Repaint();
    ExpectAll(kIconWhite);
    EXPECT_EQ(0u, Requests());
}

TEST_F(GlobalImage, WithTheNumberMinusOneAndNoPathIsWhite)
{
    StartProcess();
    image.SetIcon(-1);
    Paint();
    image.SetImagePath(L"");
    Paint();
    ExpectAll(kIconWhite);
    EXPECT_EQ(0u, Requests());
}

TEST_F(GlobalImage, HasTheProcessDrawANumberOverItsWholeArea)
{
    StartProcess();
    image.SetIcon(117);
    Paint();
    ExpectAll(kIconGreen);
    const auto requests = process->Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(2u, requests[0].Field(0));
    EXPECT_EQ(117u, requests[0].Field(524));
    const RECT rect = requests[0].Rect();
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(kWidth, rect.right);
    EXPECT_EQ(kHeight, rect.bottom);
}

TEST_F(GlobalImage, HasTheProcessDrawAPath)
{
    StartProcess();
    image.SetImagePath(L"\\a.exe");
    Paint();
    ExpectAll(kIconBlue);
    const auto requests = process->Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(0u, requests[0].Field(0));
    EXPECT_EQ(L"\\a.exe", requests[0].TextAt(4));
}

TEST_F(GlobalImage, IsWhiteWhenANumberCannotBeDrawn)
{
    image.SetIcon(100);
    Paint();
    ExpectAll(kIconWhite);
    StartProcess(0);
    image.SetIcon(100);
    Paint();
    ExpectAll(kIconWhite);
    EXPECT_EQ(1u, Requests());
}

TEST_F(GlobalImage, DrawsAPathItselfWhenTheProcessCannot)
{
    StartProcess(0);
    image.SetImagePath(L"\\windows");
    Paint();
    const HDC dc = GetDC(control);
    EXPECT_NE(0, DrawnPart(dc, kWidth, kHeight, kIconWhite).right);
    ReleaseDC(control, dc);
}

TEST_F(GlobalImage, ANumberTakesThePlaceOfAPath)
{
    StartProcess();
    image.SetImagePath(L"\\a.exe");
    image.SetIcon(-1);
    Paint();
    ExpectAll(kIconWhite);
    EXPECT_EQ(0u, Requests());
}

TEST_F(GlobalImage, APathTakesThePlaceOfANumber)
{
    StartProcess();
    image.SetIcon(100);
    image.SetImagePath(L"\\a.exe");
    Paint();
    ExpectAll(kIconBlue);
    EXPECT_EQ(1u, Requests());
}

TEST_F(GlobalImage, ANewIconCoversTheOldOne)
{
    StartProcess();
    image.SetIcon(100);
    Paint();
    process.reset();
    image.SetIcon(101);
    Paint();
    ExpectAll(kIconWhite);
}

TEST_F(GlobalImage, FindsAProcessThatHasStartedSince)
{
    image.SetIcon(100);
    Paint();
    StartProcess();
    image.SetIcon(100);
    Paint();
    ExpectAll(kIconGreen);
}

TEST_F(GlobalImage, PlainRepaintsAskForNothing)
{
    StartProcess();
    image.SetIcon(100);
    Paint();
    for (int i = 0; i < 3; ++i)
        Repaint();
    EXPECT_EQ(1u, Requests());
    ExpectAll(kIconGreen);
}

TEST_F(GlobalImage, RepaintsJustWhatIsInvalid)
{
    StartProcess();
    image.SetIcon(100);
    Paint();
    const HDC dc = GetDC(control);
    const RECT all = {0, 0, kWidth, kHeight};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    ReleaseDC(control, dc);
    const RECT part = {5, 6, 15, 16};
    InvalidateRect(control, &part, FALSE);
    Paint();
    EXPECT_EQ(kIconGreen, Pixel(5, 6));
    EXPECT_EQ(kIconGreen, Pixel(14, 15));
    EXPECT_EQ(RGB(0, 0, 0), Pixel(4, 6));
    EXPECT_EQ(RGB(0, 0, 0), Pixel(15, 15));
}

TEST_F(GlobalImage, ANewSizeAsksForThatSize)
{
    StartProcess();
    image.SetIcon(100);
    Paint();
    SetWindowPos(control, nullptr, 0, 0, 60, 50, SWP_NOMOVE | SWP_NOZORDER);
    Paint();
    const auto requests = process->Requests();
    ASSERT_EQ(2u, requests.size());
    EXPECT_EQ(60, requests[1].Rect().right);
    EXPECT_EQ(50, requests[1].Rect().bottom);
    EXPECT_EQ(kIconGreen, Pixel(59, 49));
}

TEST_F(GlobalImage, TheSizeMessageAloneAsksAnew)
{
    StartProcess();
    image.SetIcon(100);
    Paint();
    SendMessageW(control, WM_SIZE, 0, MAKELPARAM(kWidth, kHeight));
    Paint();
    EXPECT_EQ(2u, Requests());
}

TEST_F(GlobalImage, MakesANewBitmapForANewSizeOnly)
{
    g_createSection = CreateDIBSection;
    const CImportPatch patch(GetModuleHandleW(nullptr), "gdi32.dll", "CreateDIBSection",
                             CountBitmap);
    g_bitmaps = 0;
    image.SetIcon(100);
    Paint();
    image.SetIcon(101);
    Paint();
    EXPECT_EQ(1, g_bitmaps);
    SetWindowPos(control, nullptr, 0, 0, 60, 50, SWP_NOMOVE | SWP_NOZORDER);
    Paint();
    EXPECT_EQ(2, g_bitmaps);
}

TEST_F(GlobalImage, OfAProcessThatHangsBecomesWhiteAndIsUsableAgain)
{
    StartProcess();
    process->Behave(ImageProcessManner::Hang);
    image.SetIcon(100);
    const ULONGLONG begin = GetTickCount64();
    Paint();
    EXPECT_LT(GetTickCount64() - begin, 8000u);
    ExpectAll(kIconWhite);
    process.reset();
    StartProcess();
    image.SetIcon(101);
    Paint();
    ExpectAll(kIconGreen);
}

TEST_F(GlobalImage, OtherMessagesAreTheControlsOwn)
{
    SetWindowTextW(control, L"text");
    wchar_t text[10] = {};
    GetWindowTextW(control, text, 10);
    EXPECT_STREQ(L"text", text);
}

TEST_F(GlobalImage, OfNoSizeShowsNothing)
{
    StartProcess();
    SetWindowPos(control, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    image.SetIcon(100);
    EXPECT_NO_THROW(Repaint());
}

namespace
{

RECT g_clientArea;

BOOL WINAPI ClaimClientArea(HWND, RECT* area)
{
    *area = g_clientArea;
    return TRUE;
}

// A preview in a dialog that can't make its bitmap.
class GlobalImageFailure : public DialogFixture
{
protected:
    // Paints a control in a dialog while a function of the system is replaced, and returns the code
    // that leaves the dialog; 0 when none does.
    template <class Function>
    HRESULT CodeAfterPainting(const char* dll, const char* function, Function replacement)
    {
        CPlainDialog dialog;
        CGlobalImageCtlr image;
        HRESULT code = S_OK;
        const auto act = [&](HWND window)
        {
            const HWND control = CreateStatic(window);
            ASSERT_TRUE(image.SubclassWindow(control));
            const CImportPatch patch(GetModuleHandleW(nullptr), dll, function, replacement);
            UpdateWindow(control);
            isInvalid = GetUpdateRect(control, nullptr, FALSE);
            dialog.Ended = TRUE;
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        };
        try
        {
            Run(dialog, act);
        }
        catch (const CTavException& exception)
        {
            code = exception.Code();
        }
        EXPECT_EQ(nullptr, image.m_hWnd);
        return code;
    }

    // Whether the control was to be painted again.
    BOOL isInvalid = TRUE;
};

} // namespace

TEST_F(GlobalImageFailure, WithoutItsBitmapEndsTheDialogWithTheSystemsCode)
{
    EXPECT_EQ(static_cast<HRESULT>(0x80070008),
              CodeAfterPainting("gdi32.dll", "CreateDIBSection", RefuseBitmap));
    EXPECT_FALSE(isInvalid) << "asked to paint again and again";
}

// More than windows can have here, and than a bitmap can have anywhere; and none at all.
TEST_F(GlobalImageFailure, OfAnImpossibleSizeEndsTheDialogWithoutPaintingForEver)
{
    for (const RECT& area : {RECT{0, 0, 40000, 40000}, RECT{0, 0, 40, 0}, RECT{0, 0, 0, 40}})
    {
        g_clientArea = area;
        EXPECT_EQ(static_cast<HRESULT>(0x80070057),
                  CodeAfterPainting("user32.dll", "GetClientRect", ClaimClientArea));
        EXPECT_FALSE(isInvalid) << "asked to paint again and again";
    }
}
