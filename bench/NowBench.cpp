// Measures opening Customize Now Screen, from the call until its first picture is on the screen,
// beside the least that any such dialog has to do: the same list with the same rows in their order,
// filled without redrawing. Reading the registry is reported apart. Under Wine pin the program and
// the wineserver to one processor (taskset).
#include <cstdio>
#include <string>
#include <vector>

#include "bench/DialogOpening.h"
#include "bench/Goals.h"
#include "resources/resource.h"
#include "tests/dialogs/now/NowSandbox.h"
#include "tests/support/Module.h"

namespace
{

using opening::Median;
using opening::PrintMedian;

constexpr int kRounds = 30;
constexpr int kPlugins = 200;
constexpr const wchar_t* kText = L"Plug-in ";

using Rows = std::vector<std::wstring>;

// The labels of the plug-ins that the registry is filled with.
Rows LabelsOfPlugins()
{
    const wchar_t* const kinds[] = {L" (calendar)", L" (email)", L" (weather)", L" (profile)"};
    Rows rows;
    for (int i = 0; i < kPlugins; ++i)
    {
        wchar_t number[16];
        swprintf(number, 16, L"%05d", i);
        rows.push_back(std::wstring(kText) + number + kinds[i % 4]);
    }
    return rows;
}

void ShowList(HWND dialog, const Rows& rows)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_SINGLESEL |
                             LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER;
    const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", kStyle, 5, 73, width - 10, height - 105,
                                      dialog, nullptr, nullptr, nullptr);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = width - 10 - GetSystemMetrics(SM_CXVSCROLL);
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    for (size_t i = 0; i < rows.size(); ++i)
    {
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = static_cast<int>(i);
        item.pszText = const_cast<wchar_t*>(rows[i].c_str());
        SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        item.state = INDEXTOSTATEIMAGEMASK(1);
        item.stateMask = LVIS_STATEIMAGEMASK;
        SendMessageW(list, LVM_SETITEMSTATE, i, reinterpret_cast<LPARAM>(&item));
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

double TimeOfLimit(HWND owner, const Rows& rows, HINSTANCE softKeys)
{
    const auto show = [&](HWND dialog) { ShowList(dialog, rows); };
    return opening::TimeOfBareDialog(owner, {show, softKeys, IDR_DONE_CANCEL}, WC_LISTVIEWW);
}

// All in turn, so that each meets the same conditions.
struct Times
{
    std::vector<double> reading;
    std::vector<double> product;
    std::vector<double> limit;
    std::vector<double> limitWithKeys;
};

Times RunAll(const CModule& module, HWND owner)
{
    const Rows rows = LabelsOfPlugins();
    opening::CReadingTime readingTime(module.Handle());
    Times times;
    for (int round = -1; round < kRounds; ++round)
    {
        readingTime.Reset();
        const double whole =
            opening::TimeToPaint([&] { module.CustomizeNow(owner, 0, 0, 0); }, WC_LISTVIEWW);
        const double reading = readingTime.Seconds();
        const double limit = TimeOfLimit(owner, rows, nullptr);
        const double withKeys = TimeOfLimit(owner, rows, module.Handle());
        // The first dialogs of a process only warm up.
        if (round < 0)
            continue;
        times.reading.push_back(reading);
        times.product.push_back(whole - reading);
        times.limit.push_back(limit);
        times.limitWithKeys.push_back(withKeys);
    }
    return times;
}

} // namespace

int main()
{
    CNowSandbox registry;
    registry.AddMany(kPlugins, kText);
    const CModule module;
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    const Times times = RunAll(module, owner);
    DestroyWindow(owner);
    std::printf("open Customize Now Screen with %d plug-ins, call to first paint (medians of %d)\n",
                kPlugins, kRounds);
    PrintMedian("reading the plug-ins", times.reading);
    PrintMedian("the dialog", times.product);
    PrintMedian("limit: the same list, nothing else", times.limit);
    PrintMedian("limit with soft keys", times.limitWithKeys);
    CGoals goals;
    goals.Check("dialog / limit", Median(times.product) / Median(times.limit), 1.3);
    goals.Check("dialog / limit with soft keys",
                Median(times.product) / Median(times.limitWithKeys), 1.3);
    return goals.Finish();
}
