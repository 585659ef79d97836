// Measures the menu load beside the least that any load must do and beside a plain one: registry
// calls exactly, time in turn in one run. Under Wine pin the program and the wineserver to one
// processor (taskset): a registry call costs six times as much across two.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

#include "bench/Goals.h"
#include "bench/MenuWalks.h"
#include "bench/Timing.h"
#include "menu/MenuMerge.h"
#include "menu/MenuTree.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/GeneratedMenu.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

unsigned CallsOf(const std::function<void()>& work)
{
    const unsigned before = os::CountedRegistryCalls().Total();
    work();
    return os::CountedRegistryCalls().Total() - before;
}

void CheckSameSize(size_t items)
{
    CMenuTree tree(true);
    tree.Load();
    if (tree.Items.Count() != items + 1 || CountItems(WalkMinimal()) != items + 1 ||
        CountItems(WalkPlain()) != items + 1)
        std::printf("  the walks disagree about the number of items\n");
}

// Seconds per item.
struct Cost
{
    double Product;
    // The raw walk, for comparison: what the registry itself costs at that size and shape.
    double Raw;
};

Cost Measure(const char* what, GeneratedMenu (*generate)(uint32_t), uint32_t items, CGoals& goals)
{
    CRegistrySandbox sandbox;
    const GeneratedMenu menu = generate(items);
    std::printf("%s, %u items\n", what, menu.Items);
    CheckSameSize(menu.Items);

    const auto nothing = [] {};
    std::vector<Contestant> all = {
        {"product", nothing, [] { CMenuTree(true).Load(); }, {}},
        {"minimal, three layers", nothing, [] { Keep(WalkMinimal().Children.size()); }, {}},
        {"raw, the product's layer only",
         nothing,
         [] { Keep(WalkOwnLayer().Children.size()); },
         {}},
        {"plain", nothing, [] { Keep(WalkPlain().Children.size()); }, {}},
    };
    RunInTurn(all, items > 5000 ? 5 : 15);
    std::vector<unsigned> calls;
    for (const Contestant& one : all)
    {
        calls.push_back(CallsOf(one.work));
        std::printf("  %-46s %8.2f ms  %7u calls  %5.2f per item\n", one.name.c_str(),
                    one.Best() * 1000, calls.back(), 1.0 * calls.back() / menu.Items);
    }
    goals.Check("calls / least possible", 1.0 * calls[0] / menu.MinimalCalls, 1.05);
    goals.Check("calls / plain", 1.0 * calls[0] / calls[3], 0.65);
    goals.Check("time / minimal", all[0].Best() / all[1].Best(), 1.15);
    const uint32_t own = static_cast<uint32_t>(CountItems(WalkOwnLayer())) - 1;
    const Cost cost = {all[0].Best() / menu.Items, all[2].Best() / own};
    goals.Check("time per item / raw per own item", cost.Product / cost.Raw, 1.45);
    return cost;
}

void CompareGrowth(const char* what, const Cost& big, const Cost& small, CGoals& goals)
{
    std::printf("%s against 200 nested\n", what);
    goals.Check("time per item", big.Product / small.Product, 1.05);
    std::printf("  %-46s %6.2f\n", "the registry's own growth (raw walk)", big.Raw / small.Raw);
}

void MeasureMerge(CGoals& goals)
{
    constexpr uint32_t kNames = 10000;
    KeyNames own, customised;
    for (uint32_t i = 0; i < kNames; ++i)
    {
        own.push_back(L"Menu item " + std::to_wstring(i));
        customised.push_back(L"menu ITEM " + std::to_wstring(kNames - 1 - i));
    }
    std::vector<Contestant> merge = {
        {"merge", [] {}, [&] { Keep(MergeLayers(own, {}, customised).size()); }, {}}};
    RunInTurn(merge, 31);
    std::printf("merging %u names, each met twice\n", kNames);
    goals.Check("microseconds per item", merge[0].Best() * 1e6 / kNames, 1.0);
}

} // namespace

int main()
{
    CGoals goals;
    const Cost small = Measure("nested", GenerateMenu, 200, goals);
    Measure("nested", GenerateMenu, 2000, goals);
    const Cost big = Measure("nested", GenerateMenu, 10000, goals);
    const Cost flat = Measure("one flat menu", GenerateFlatMenu, 10000, goals);
    CompareGrowth("10,000 nested", big, small, goals);
    CompareGrowth("10,000 flat", flat, small, goals);
    MeasureMerge(goals);
    return goals.Finish();
}
