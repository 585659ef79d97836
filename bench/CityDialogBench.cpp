// Measures Select City with as many cities as the world has: opening, from the call until the list
// is on the screen, beside the least that any such dialog has to do, and each key of a search until
// its result is painted, beside repainting the list. Under Wine pin the program and the wineserver
// to one processor (taskset).
#include "bench/CityLimit.h"
#include "bench/Goals.h"
#include "tests/dialogs/city/CityFolder.h"
#include "tests/support/DialogRun.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kRounds = 30;
constexpr uint32_t kCities = 171075;
constexpr uint32_t kHostsCity = kCities / 2;
constexpr int kSearchId = 201;

// What is typed, letter by letter, and how many names contain each beginning of it.
constexpr wchar_t kTyped[] = L"qxzjk";
constexpr uint32_t kCounts[] = {119113, 71000, 8000, 1000, 44};

// Cities in no order of their names, as many with each beginning of the typed text as wanted.
Bytes GenerateCities(CityTexts& texts)
{
    CCityImageBuilder builder;
    builder.Area(L"Somewhere");
    for (uint32_t i = 0; i < kCities; ++i)
    {
        const uint32_t rank = static_cast<uint32_t>(uint64_t{i} * 48271 % kCities);
        std::wstring name = L"Town " + std::to_wstring(i);
        for (size_t letter = 0; letter < std::size(kCounts) && rank < kCounts[letter]; ++letter)
            name += kTyped[letter];
        builder.City(name);
        texts.Names.push_back(name);
    }
    return builder.Build();
}

// When the list of the dialog that is opening was first painted, and when it got its rows.
Clock::time_point g_painted;
Clock::time_point g_counted;
// When the module began to read the database.
Clock::time_point g_loading;

WNDPROC g_listProcedure;
bool g_isUnpainted;
bool g_isUncounted;

LRESULT CALLBACK StampList(HWND list, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == LVM_SETITEMCOUNT && g_isUncounted)
    {
        g_isUncounted = false;
        g_counted = Clock::now();
    }
    const LRESULT result = CallWindowProcW(g_listProcedure, list, message, wParam, lParam);
    if (message == WM_PAINT && g_isUnpainted)
    {
        g_isUnpainted = false;
        const HWND dialog = GetParent(list);
        UpdateWindow(dialog);
        GdiFlush();
        g_painted = Clock::now();
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    return result;
}

// Waits for the next list to be created. Only as long as that: a hook makes every message dear.
HHOOK g_hook;

LRESULT CALLBACK FindList(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    wchar_t name[32] = {};
    if (code == HC_ACTION && sent.message == WM_CREATE && GetClassNameW(sent.hwnd, name, 32) &&
        lstrcmpW(name, WC_LISTVIEWW) == 0)
    {
        g_isUnpainted = g_isUncounted = true;
        g_listProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(sent.hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(StampList)));
        UnhookWindowsHookEx(g_hook);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

HCURSOR WINAPI StampCursor(HCURSOR cursor)
{
    if (g_isUncounted)
        g_loading = Clock::now();
    return SetCursor(cursor);
}

// Seconds from the call of `open` until the list was painted.
template <class Open>
double TimeToPaint(Open open)
{
    g_hook = SetWindowsHookExW(WH_CALLWNDPROCRET, FindList, nullptr, GetCurrentThreadId());
    const auto begin = Clock::now();
    open();
    return Seconds(g_painted - begin).count();
}

// The least disturbed round: on a busy machine a median tells more about the others.
double Best(const std::vector<double>& seconds)
{
    return *std::min_element(seconds.begin(), seconds.end());
}

void PrintBest(const char* what, const std::vector<double>& seconds)
{
    std::printf("  %-46s %8.3f ms\n", what, Best(seconds) * 1000);
}

void SelectCity(const CModule& module, HWND owner)
{
    CITYINFO city = {};
    city.identifier = kHostsCity + 1;
    module.SelectCity(owner, &city, 0);
}

void MeasureOpening(const CModule& module, HWND owner, const CityTexts& texts, CGoals& goals)
{
    std::vector<double> data, product, bare, withKeys, withSearch;
    const LimitRequest requests[] = {{texts, nullptr, false, kHostsCity},
                                     {texts, module.Handle(), false, kHostsCity},
                                     {texts, module.Handle(), true, kHostsCity}};
    // All in turn, so that each meets the same conditions; the first round only warms up.
    for (int round = -1; round < kRounds; ++round)
    {
        const double whole = TimeToPaint([&] { SelectCity(module, owner); });
        const double reading = Seconds(g_counted - g_loading).count();
        double limits[3];
        for (size_t i = 0; i < 3; ++i)
            limits[i] = TimeToPaint([&] { RunLimitDialog(owner, requests[i]); });
        if (round < 0)
            continue;
        data.push_back(reading);
        product.push_back(whole - reading);
        bare.push_back(limits[0]);
        withKeys.push_back(limits[1]);
        withSearch.push_back(limits[2]);
    }
    std::printf("open Select City with %u cities, call to first paint (best of %d)\n", kCities,
                kRounds);
    PrintBest("reading and preparing the database", data);
    PrintBest("the dialog", product);
    PrintBest("limit: the same list, nothing else", bare);
    PrintBest("limit with soft keys", withKeys);
    PrintBest("limit with soft keys, search box, input panel", withSearch);
    goals.Check("dialog / limit", Best(product) / Best(bare), 1.3);
    goals.Check("dialog / limit with soft keys", Best(product) / Best(withKeys), 1.3);
    goals.Check("dialog / limit with all of its controls", Best(product) / Best(withSearch), 1.3);
}

// The times of one key and of the page that it leads to.
struct KeyTimes
{
    int rows = 0;
    std::vector<double> key;
    std::vector<double> page;
};

// One per letter, then one for deleting them all.
std::vector<KeyTimes> g_keys;
bool g_withSelection;

template <class Work>
double TimeOf(HWND list, Work work)
{
    const auto begin = Clock::now();
    work();
    UpdateWindow(list);
    GdiFlush();
    return Seconds(Clock::now() - begin).count();
}

void SelectMiddle(HWND list)
{
    const int rows = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(rows / 2),
                 reinterpret_cast<LPARAM>(&item));
    SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(rows / 2), 0);
    UpdateWindow(list);
}

template <class Key>
void MeasureKey(HWND list, KeyTimes& times, Key key)
{
    if (g_withSelection)
        SelectMiddle(list);
    times.key.push_back(TimeOf(list, key));
    times.rows = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    times.page.push_back(TimeOf(list, [list] { InvalidateRect(list, nullptr, TRUE); }));
}

void MeasureKeys(HWND dialog)
{
    const HWND search = GetDlgItem(dialog, kSearchId);
    const HWND list = GetDlgItem(dialog, kLimitListId);
    const auto paintBox = [search] { UpdateWindow(search); };
    const size_t letters = std::size(kCounts);
    g_keys.assign(letters + 1, {});
    for (int round = 0; round < kRounds; ++round)
    {
        for (size_t i = 0; i < letters; ++i)
            MeasureKey(list, g_keys[i],
                       [&]
                       {
                           SendMessageW(search, WM_CHAR, kTyped[i], 0);
                           paintBox();
                       });
        SendMessageW(search, EM_SETSEL, 0, -1);
        MeasureKey(list, g_keys[letters],
                   [&]
                   {
                       SendMessageW(search, WM_CLEAR, 0, 0);
                       paintBox();
                   });
    }
}

void CALLBACK TypeOnce(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    KillTimer(nullptr, timer);
    MeasureKeys(dialog);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

void MeasureTyping(const CModule& module, HWND owner, bool withSelection, CGoals& goals)
{
    g_withSelection = withSelection;
    SetTimer(nullptr, 0, 200, TypeOnce);
    SelectCity(module, owner);
    std::printf("one key until its result is painted, %s (best of %d)\n",
                withSelection ? "a row being selected" : "nothing being selected", kRounds);
    for (const KeyTimes& times : g_keys)
    {
        const double key = Best(times.key);
        const double page = Best(times.page);
        char what[100];
        std::snprintf(what, sizeof(what), "%6d rows: key %.3f ms / page %.3f ms", times.rows,
                      key * 1000, page * 1000);
        goals.Check(what, key / page, 4);
    }
}

} // namespace

int main()
{
    CGoals goals;
    CRegistrySandbox registry;
    CCityFolder folder;
    SetInstallFolder(registry, folder);
    CityTexts texts;
    folder.InstallAsFolder(GenerateCities(texts));
    const CModule module;
    const CImportPatch cursor(module.Handle(), "user32.dll", "SetCursor", StampCursor);
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    MeasureOpening(module, owner, texts, goals);
    MeasureTyping(module, owner, false, goals);
    MeasureTyping(module, owner, true, goals);
    DestroyWindow(owner);
    return goals.Finish();
}
