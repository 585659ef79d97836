// Measures building the list of icons to choose from, beside the least that it takes: the same 200
// requests and the same images without the module. The launcher-menu process is a window on a
// thread of this program. Under Wine pin the program and the wineserver to one processor (taskset).
#include <cstdio>
#include <cstdlib>

#include "bench/Goals.h"
#include "bench/Timing.h"
#include "platform/Handles.h"
#include "tests/support/ImageProcess.h"
#include "ui/BitmapBuffer.h"
#include "ui/IconImageList.h"
#include "ui/ImageRequest.h"

namespace
{

constexpr int kIcons = 200;
constexpr int kSide = 32;
constexpr int kRounds = 30;

// Draws a square for each number that it knows.
LRESULT DrawSquare(const ImageProcessRequest& request)
{
    const auto number = static_cast<int>(request.Field(524));
    const RECT square = {4, 4, 28, 28};
    FillRect(request.Dc(), &square, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    GdiFlush();
    return number < kFirstIconNumber + kIcons;
}

bool Request(HWND process, int number, HDC dc)
{
    ImageRequestRecord record = {};
    record.Kind = 2;
    record.Number = number;
    record.Dc = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(dc));
    record.Right = record.Bottom = kSide;
    COPYDATASTRUCT data = {6000, sizeof(record), &record};
    return SendMessageW(process, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data)) != 0;
}

UniqueImageList BuildLimit()
{
    UniqueImageList list(ImageList_Create(kSide, kSide, ILC_COLOR32, 32, 16));
    const HWND process = FindWindowW(L"TavMenu_ProcessWindow", nullptr);
    CBitmapBuffer bitmap;
    bitmap.Create(kSide, kSide, BitmapFormatRgb565);
    const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
    for (int number = kFirstIconNumber;; ++number)
    {
        {
            const CSelectObject selected(dc.get(), bitmap.Bitmap());
            PatBlt(dc.get(), 0, 0, kSide, kSide, WHITENESS);
            if (!Request(process, number, dc.get()))
                return list;
        }
        ImageList_Add(list.get(), bitmap.Bitmap(), nullptr);
    }
}

// Measuring anything else would be no measure.
void ExpectAll(const UniqueImageList& list)
{
    const int count = ImageList_GetImageCount(list.get());
    if (count == kIcons)
        return;
    std::printf("%d images instead of %d\n", count, kIcons);
    std::exit(2);
}

} // namespace

int main()
{
    const CImageProcess process(DrawSquare);
    std::vector<Contestant> contestants = {
        {"the list of icons", [] {}, [] { ExpectAll(BuildIconList(L"")); }, {}},
        {"limit: the same draws", [] {}, [] { ExpectAll(BuildLimit()); }, {}}};
    RunInTurn(contestants, kRounds);
    std::printf("build a list of %d icons (best of %d)\n", kIcons, kRounds);
    for (const Contestant& contestant : contestants)
        std::printf("  %-46s %8.3f ms\n", contestant.name.c_str(), contestant.Best() * 1000);
    CGoals goals;
    goals.Check("list / limit", contestants[0].Best() / contestants[1].Best(), 1.3);
    return goals.Finish();
}
