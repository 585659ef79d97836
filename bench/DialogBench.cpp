// Measures opening Customize Menu, from the call until its first picture is on the screen, beside
// the least that any such dialog has to do: the same tree with the same nodes, filled without
// redrawing. Reading the menu from the registry is reported apart. Under Wine pin the program and
// the wineserver to one processor (taskset).
#include <cstdio>

#include "bench/DialogOpening.h"
#include "bench/Goals.h"
#include "menu/MenuTree.h"
#include "resources/resource.h"
#include "tests/menu/support/GeneratedMenu.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

using opening::Median;
using opening::PrintMedian;

constexpr int kRounds = 30;

// All in turn, so that each meets the same conditions.
struct Times
{
    std::vector<double> reading;
    std::vector<double> product;
    std::vector<double> limit;
    std::vector<double> limitWithKeys;
};

Times RunAll(const CMenuItem& root, const CModule& module, HWND owner)
{
    Times times;
    opening::CReadingTime reading(module.Handle());
    const auto fill = [&](HWND tree, HTREEITEM node) { opening::InsertItems(tree, node, root); };
    for (int round = -1; round < kRounds; ++round)
    {
        reading.Reset();
        const double whole = opening::TimeToPaint([&] { module.CustomizeMenu(owner, 0, 0, 0); });
        const double spent = reading.Seconds();
        const double limit = opening::TimeOfLimit(owner, {fill, nullptr, 0});
        const double withKeys =
            opening::TimeOfLimit(owner, {fill, module.Handle(), IDR_MENU_EDITOR});
        // The first dialogs of a process only warm up.
        if (round < 0)
            continue;
        times.reading.push_back(spent);
        times.product.push_back(whole - spent);
        times.limit.push_back(limit);
        times.limitWithKeys.push_back(withKeys);
    }
    return times;
}

void Measure(uint32_t items, CGoals& goals)
{
    CRegistrySandbox sandbox;
    const GeneratedMenu menu = GenerateMenu(items);
    CMenuTree tree(false);
    tree.Load();
    const CModule module;
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    const Times times = RunAll(*tree.Root, module, owner);
    DestroyWindow(owner);
    std::printf("open Customize Menu with %u items, call to first paint (medians of %d)\n",
                menu.Items, kRounds);
    PrintMedian("reading the menu", times.reading);
    PrintMedian("the dialog", times.product);
    PrintMedian("limit: the same tree, nothing else", times.limit);
    PrintMedian("limit with soft keys", times.limitWithKeys);
    goals.Check("dialog / limit", Median(times.product) / Median(times.limit), 1.3);
    goals.Check("dialog / limit with soft keys",
                Median(times.product) / Median(times.limitWithKeys), 1.3);
}

} // namespace

int main()
{
    CGoals goals;
    Measure(200, goals);
    Measure(2000, goals);
    return goals.Finish();
}
