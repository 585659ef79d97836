// Every call that the exports make of the system fails once, and then for ever: only the stated
// results leave, nothing leaks, the owner is enabled, nothing is written that is not meant.
#include "tests/faults/Sweep.h"
#include "tests/support/LongRun.h"

#include <gtest/gtest.h>

#include <tuple>

namespace
{

constexpr const char* kExports[] = {"CustomizeMenu", "CustomizeHome", "CustomizeNow",
                                    "InstallWizard", "SelectCity"};

// Points per function in the quick run, by kind; the long one takes all.
unsigned MostPerFunction(FaultKind kind)
{
    if (IsLongRun())
        return ~0u;
    constexpr unsigned kMost[] = {4, 2, 1};
    return kMost[static_cast<size_t>(kind)];
}

using SweepParameters = std::tuple<const char*, FaultKind, bool>;

class FaultSweep : public testing::TestWithParam<SweepParameters>
{
};

std::string NameOf(const testing::TestParamInfo<SweepParameters>& info)
{
    constexpr const char* kKinds[] = {"Memory", "Registry", "System"};
    const auto& [name, kind, forEver] = info.param;
    return std::string(name) + kKinds[static_cast<size_t>(kind)] + (forEver ? "ForEver" : "Once");
}

} // namespace

TEST_P(FaultSweep, LeavesNothingBehindAtAnyPoint)
{
    const auto& [name, kind, forEver] = GetParam();
    CSweep sweep(name, SessionEnd::Done);
    ASSERT_TRUE(sweep.GoodOutcome().tookAllSteps);
    sweep.Run(sweep.Points(kind, forEver, MostPerFunction(kind)));
}

INSTANTIATE_TEST_SUITE_P(Exports, FaultSweep,
                         testing::Combine(testing::ValuesIn(kExports),
                                          testing::Values(FaultKind::Memory, FaultKind::Registry,
                                                          FaultKind::System),
                                          testing::Bool()),
                         NameOf);
