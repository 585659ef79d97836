// Measures opening Choose Icon with 200 icons, from the command until its first picture is on the
// screen, beside the least that any such dialog has to do: the same list with the same images,
// filled without redrawing. Having the icons drawn is reported apart; IconBench looks into that.
// Under Wine pin the program and the wineserver to one processor (taskset).
#include <chrono>
#include <cstdio>
#include <vector>

#include "bench/DialogOpening.h"
#include "bench/Goals.h"
#include "platform/Handles.h"
#include "resources/resource.h"
#include "tests/support/DialogRun.h"
#include "tests/support/ImageProcess.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/TreeDriver.h"

namespace
{

using Clock = std::chrono::steady_clock;
using opening::Median;
using opening::PrintMedian;

constexpr int kRounds = 30;
constexpr int kIcons = 200;
constexpr int kFirstIcon = 100;
constexpr int kSide = 32;
constexpr int kSpacing = 42;
constexpr size_t kNumberField = 524;

LRESULT DrawSquare(const ImageProcessRequest& request)
{
    const RECT square = {4, 4, 28, 28};
    FillRect(request.Dc(), &square, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    GdiFlush();
    return static_cast<int>(request.Field(kNumberField)) < kFirstIcon + kIcons;
}

// The part of an opening that has the icons drawn: from the making of the list of images to the
// last answer of the launcher-menu process.
Clock::time_point g_begin;
Clock::time_point g_end;
decltype(&ImageList_Create) g_createList;

HIMAGELIST WINAPI StampBegin(int width, int height, UINT flags, int initial, int growth)
{
    g_begin = Clock::now();
    return g_createList(width, height, flags, initial, growth);
}

LRESULT WINAPI StampEnd(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                        UINT timeout, DWORD_PTR* result)
{
    const LRESULT answer =
        SendMessageTimeoutW(window, message, wParam, lParam, flags, timeout, result);
    g_end = Clock::now();
    return answer;
}

UniqueImageList MakeImages()
{
    UniqueImageList images(ImageList_Create(kSide, kSide, ILC_COLOR32, kIcons, 0));
    const UniqueScreenDc screen(GetDC(nullptr));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen.get(), kSide, kSide));
    for (int i = 0; i < kIcons; ++i)
        ImageList_Add(images.get(), bitmap.get(), nullptr);
    return images;
}

void ShowList(HWND dialog, HIMAGELIST images)
{
    RECT client = {};
    GetClientRect(dialog, &client);
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | LVS_ICON | LVS_AUTOARRANGE | LVS_SINGLESEL |
                             LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
    const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", kStyle, 0, 24, client.right,
                                      client.bottom - 24, dialog, nullptr, nullptr, nullptr);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_SETIMAGELIST, LVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    SendMessageW(list, LVM_SETICONSPACING, 0, MAKELPARAM(kSpacing, kSpacing));
    wchar_t noText[] = L"";
    for (int i = 0; i < kIcons; ++i)
    {
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = i;
        item.iImage = i;
        item.pszText = noText;
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

double TimeOfLimit(HWND owner, HIMAGELIST images, HINSTANCE softKeys)
{
    const auto show = [=](HWND dialog) { ShowList(dialog, images); };
    return opening::TimeOfBareDialog(owner, {show, softKeys, IDR_DONE_CANCEL}, WC_LISTVIEWW);
}

// All in turn, so that each meets the same conditions.
struct Times
{
    std::vector<double> drawing;
    std::vector<double> product;
    std::vector<double> limit;
    std::vector<double> limitWithKeys;
};

// Measures over Edit Item, which is open.
Times RunAll(HWND edit, HMODULE module)
{
    const UniqueImageList images = MakeImages();
    Times times;
    for (int round = -1; round < kRounds; ++round)
    {
        const double whole =
            opening::TimeToPaint([=] { SendCommand(edit, IDC_CHANGE_ICON); }, WC_LISTVIEWW);
        const double drawing = std::chrono::duration<double>(g_end - g_begin).count();
        const double limit = TimeOfLimit(edit, images.get(), nullptr);
        const double withKeys = TimeOfLimit(edit, images.get(), module);
        // The first dialogs of a process only warm up.
        if (round < 0)
            continue;
        times.drawing.push_back(drawing);
        times.product.push_back(whole - drawing);
        times.limit.push_back(limit);
        times.limitWithKeys.push_back(withKeys);
    }
    return times;
}

// What the timer needs to go on from dialog to dialog.
HMODULE g_module;
Times g_times;

// Opens Edit Item in the menu editor, measures over it, and closes both.
void CALLBACK WorkDialog(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    if (TextOf(dialog) == L"Edit Item")
    {
        KillTimer(nullptr, timer);
        g_times = RunAll(dialog, g_module);
        const HWND editor = GetWindow(dialog, GW_OWNER);
        PostCommand(dialog, IDCANCEL);
        PostCommand(editor, IDCANCEL);
        return;
    }
    const CTreeDriver tree(GetDlgItem(dialog, IDC_MENU_TREE));
    tree.Select(tree.Find(L"My Menu"));
    PostCommand(dialog, ID_EDIT_ITEM);
}

} // namespace

int main()
{
    const CMenuSandbox registry;
    const CImageProcess process(DrawSquare);
    const CModule module;
    g_module = module.Handle();
    g_createList = ImageList_Create;
    const CImportPatch begin(g_module, "comctl32.dll", "ImageList_Create", StampBegin);
    const CImportPatch end(g_module, "user32.dll", "SendMessageTimeoutW", StampEnd);
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog);
    module.CustomizeMenu(owner, 0, 0, 0);
    DestroyWindow(owner);
    std::printf("open Choose Icon with %d icons, command to first paint (medians of %d)\n", kIcons,
                kRounds);
    PrintMedian("having the icons drawn", g_times.drawing);
    PrintMedian("the dialog", g_times.product);
    PrintMedian("limit: the same list, nothing else", g_times.limit);
    PrintMedian("limit with soft keys", g_times.limitWithKeys);
    CGoals goals;
    goals.Check("dialog / limit", Median(g_times.product) / Median(g_times.limit), 1.3);
    goals.Check("dialog / limit with soft keys",
                Median(g_times.product) / Median(g_times.limitWithKeys), 1.3);
    return goals.Finish();
}
