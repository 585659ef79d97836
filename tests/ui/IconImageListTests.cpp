// The list of icons to choose from: which numbers are asked for, what the images are, when it ends.
#include "ui/IconImageList.h"

#include "frame/TavException.h"
#include "tests/support/ImportPatch.h"
#include "tests/ui/IconFixture.h"
#include "ui/ImagePath.h"

namespace
{

constexpr size_t kNumber = 524;
constexpr size_t kKind = 0;

// Refused in the tests below.
HIMAGELIST WINAPI RefuseList(int, int, UINT, int, int)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}
int WINAPI RefuseImage(HIMAGELIST, HBITMAP, HBITMAP)
{
    return -1;
}
HBITMAP WINAPI RefuseSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return nullptr;
}

decltype(&ImageList_Create) g_createList;
int g_width;
int g_initial;
int g_growth;
HIMAGELIST WINAPI RecordList(int width, int height, UINT flags, int initial, int growth)
{
    g_width = width;
    g_initial = initial;
    g_growth = growth;
    return g_createList(width, height, flags, initial, growth);
}

decltype(&SendMessageTimeoutW) g_send;
int g_sends;
LRESULT WINAPI CountSend(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                         UINT timeout, DWORD_PTR* result)
{
    ++g_sends;
    return g_send(window, message, wParam, lParam, flags, timeout, result);
}

class IconImageList : public testing::Test
{
protected:
    IconImageList() { SetCurrentDirectoryW(L"C:\\"); }

    // Starts a process that has icons up to `last`: each a vertical line of its own colour, and a
    // pixel row of garbage for the first one that it hasn't.
    void Start(int last)
    {
        process = std::make_unique<CImageProcess>(
            [=](const ImageProcessRequest& request)
            {
                if (request.Field(kKind) != 2)
                    return LRESULT{0};
                const int number = static_cast<int>(request.Field(kNumber));
                backgrounds.push_back(GetPixel(request.Dc(), 0, 0));
                for (int y = 0; y < 32; ++y)
                    SetPixel(request.Dc(), number - 100, y, ColourOf(number));
                GdiFlush();
                return LRESULT{number <= last};
            });
    }
    // One that 16 bits hold exactly.
    static COLORREF ColourOf(int number)
    {
        const int red = (number - 100) % 32;
        return RGB(red << 3 | red >> 2, 0, 255);
    }

    void Build(const std::wstring& path = L"") { list = BuildIconList(path); }
    int Count() { return ImageList_GetImageCount(list.get()); }
    // A pixel of an image, drawn over red.
    COLORREF PixelOf(int image, int x, int y)
    {
        CBitmapBuffer canvas;
        EXPECT_TRUE(canvas.Create(IconWidth(), IconHeight(), 4));
        canvas.Fill(0, 0, IconWidth(), IconHeight(), RGB(255, 0, 0), 255);
        EXPECT_TRUE(ImageList_Draw(list.get(), image, canvas.GetMemoryDC(), 0, 0, ILD_NORMAL));
        return GetPixel(canvas.GetMemoryDC(), x, y);
    }
    HRESULT CodeThrown()
    {
        try
        {
            Build();
        }
        catch (const CTavException& exception)
        {
            return exception.Code();
        }
        ADD_FAILURE() << "nothing was thrown";
        return S_OK;
    }

    std::vector<COLORREF> backgrounds;
    std::unique_ptr<CImageProcess> process;
    UniqueImageList list;
};

class IconListGeometry : public IconImageList
{
};

} // namespace

TEST_F(IconImageList, IsEmptyWithoutTheProcess)
{
    Build();
    ASSERT_TRUE(list);
    EXPECT_EQ(0, Count());
}

TEST_F(IconImageList, HoldsThePathsImageAloneWithoutTheProcess)
{
    Build(L"\\windows");
    EXPECT_EQ(1, Count());
}

TEST_F(IconImageList, AsksForNumbersFrom100ToTheFirstThatFails)
{
    Start(104);
    Build();
    EXPECT_EQ(5, Count());
    const auto requests = process->Requests();
    ASSERT_EQ(6u, requests.size());
    for (size_t i = 0; i < requests.size(); ++i)
    {
        EXPECT_EQ(2u, requests[i].Field(kKind));
        EXPECT_EQ(100 + i, requests[i].Field(kNumber));
        const RECT rect = requests[i].Rect();
        EXPECT_EQ(0, rect.left);
        EXPECT_EQ(0, rect.top);
        EXPECT_EQ(IconWidth(), rect.right);
        EXPECT_EQ(IconHeight(), rect.bottom);
    }
}

TEST_F(IconImageList, ImageIShowsIcon100PlusI)
{
    Start(104);
    Build();
    for (int i = 0; i < 5; ++i)
        for (int x = 0; x < 32; ++x)
            EXPECT_EQ(x == i ? ColourOf(100 + i) : kIconWhite, PixelOf(i, x, 17)) << i << " " << x;
}

TEST_F(IconImageList, EveryIconIsDrawnOnWhite)
{
    Start(102);
    Build();
    EXPECT_EQ(std::vector<COLORREF>(4, kIconWhite), backgrounds);
}

TEST_F(IconImageList, ThePathsImageComesLastAndOnWhite)
{
    Start(101);
    Build(L"no such file");
    ASSERT_EQ(3, Count());
    // The garbage of the number that failed is gone.
    for (int x = 0; x < 32; ++x)
        EXPECT_EQ(kIconWhite, PixelOf(2, x, 5)) << x;
    const auto requests = process->Requests();
    ASSERT_EQ(4u, requests.size());
    EXPECT_EQ(0u, requests[3].Field(kKind));
    EXPECT_EQ(L"no such file", requests[3].TextAt(4));
}

TEST_F(IconImageList, ThePathsImageMayBeDrawnByTheProcess)
{
    process = std::make_unique<CImageProcess>(
        [](const ImageProcessRequest& request)
        {
            if (request.Field(kKind) == 0)
                FillRectOf(request, kIconGreen);
            return LRESULT{request.Field(kKind) == 0};
        });
    Build(L"\\a.exe");
    ASSERT_EQ(1, Count());
    EXPECT_EQ(kIconGreen, PixelOf(0, 0, 0));
    EXPECT_EQ(kIconGreen, PixelOf(0, 31, 31));
}

TEST_F(IconImageList, ColoursAreAsGoodAsTheScreens)
{
    Start(131);
    Build();
    IMAGEINFO info = {};
    ASSERT_TRUE(ImageList_GetImageInfo(list.get(), 0, &info));
    BITMAP bitmap = {};
    GetObjectW(info.hbmImage, sizeof(bitmap), &bitmap);
    EXPECT_EQ(32, bitmap.bmBitsPixel);
}

TEST_F(IconImageList, StartsWith32AndGrowsBy16)
{
    g_createList = ImageList_Create;
    const CImportPatch patch(GetModuleHandleW(nullptr), "comctl32.dll", "ImageList_Create",
                             RecordList);
    Build();
    EXPECT_EQ(IconWidth(), g_width);
    EXPECT_EQ(32, g_initial);
    EXPECT_EQ(16, g_growth);
}

TEST_F(IconImageList, OfAProcessThatDrawsEverythingEndsAt4096)
{
    process =
        std::make_unique<CImageProcess>([](const ImageProcessRequest&) { return LRESULT{1}; });
    Build();
    EXPECT_EQ(4096, Count());
    EXPECT_EQ(4096u, process->Requests().size());
}

TEST_F(IconImageList, EndsWhenTheListTakesNoMore)
{
    const CImportPatch patch(GetModuleHandleW(nullptr), "comctl32.dll", "ImageList_Add",
                             RefuseImage);
    Start(104);
    Build();
    EXPECT_EQ(0, Count());
    EXPECT_EQ(1u, process->Requests().size());
}

TEST_F(IconImageList, OfAProcessThatHangsIsFinishedHereWithoutAskingAgain)
{
    process = std::make_unique<CImageProcess>(
        [this](const ImageProcessRequest&)
        {
            process->Behave(ImageProcessManner::Hang);
            return LRESULT{1};
        });
    g_send = SendMessageTimeoutW;
    g_sends = 0;
    const CImportPatch patch(GetModuleHandleW(nullptr), "user32.dll", "SendMessageTimeoutW",
                             CountSend);
    const ULONGLONG begin = GetTickCount64();
    Build(L"\\windows");
    EXPECT_LT(GetTickCount64() - begin, 8000u);
    EXPECT_EQ(2, Count());
    EXPECT_EQ(2u, process->Requests().size());
    EXPECT_EQ(2, g_sends);
}

TEST_F(IconImageList, OfAProcessThatDiesKeepsWhatWasDrawn)
{
    process = std::make_unique<CImageProcess>(
        [this](const ImageProcessRequest&)
        {
            process->Behave(ImageProcessManner::Die);
            return LRESULT{1};
        });
    Build(L"\\windows");
    EXPECT_EQ(2, Count());
}

TEST_F(IconImageList, WithoutMemoryForTheListFailsWithTheSystemsCode)
{
    const CImportPatch patch(GetModuleHandleW(nullptr), "comctl32.dll", "ImageList_Create",
                             RefuseList);
    EXPECT_EQ(static_cast<HRESULT>(0x80070008), CodeThrown());
}

TEST_F(IconImageList, WithoutMemoryForItsBitmapFailsWithTheSystemsCode)
{
    const CImportPatch patch(GetModuleHandleW(nullptr), "gdi32.dll", "CreateDIBSection",
                             RefuseSection);
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), CodeThrown());
}

TEST_F(IconListGeometry, ImagesAre32LogicalPixelsLarge)
{
    Start(100);
    Build();
    int width = 0;
    int height = 0;
    ASSERT_TRUE(ImageList_GetIconSize(list.get(), &width, &height));
    EXPECT_EQ(Px(32), width);
    EXPECT_EQ(Px(32), height);
    const RECT rect = process->Requests().at(0).Rect();
    EXPECT_EQ(Px(32), rect.right);
    EXPECT_EQ(Px(32), rect.bottom);
}
