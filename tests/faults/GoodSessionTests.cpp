// The sessions that the sweeps repeat, without any failure: what they are worth.
#include "tests/faults/Sweep.h"

#include <gtest/gtest.h>

#include <numeric>

namespace
{

class GoodSession : public testing::TestWithParam<const char*>
{
};

} // namespace

TEST_P(GoodSession, TakesEveryStepAndIsConfirmed)
{
    const CSweep sweep(GetParam(), SessionEnd::Done);
    EXPECT_TRUE(sweep.GoodOutcome().tookAllSteps);
    EXPECT_EQ(TRUE, sweep.GoodOutcome().result);
    EXPECT_GT(std::accumulate(sweep.GoodCalls().begin(), sweep.GoodCalls().end(), 0u), 100u);
}

TEST_P(GoodSession, CanBeCancelled)
{
    const CSweep sweep(GetParam(), SessionEnd::Cancel);
    EXPECT_TRUE(sweep.GoodOutcome().tookAllSteps);
    EXPECT_EQ(FALSE, sweep.GoodOutcome().result);
}

INSTANTIATE_TEST_SUITE_P(Exports, GoodSession,
                         testing::Values("CustomizeMenu", "CustomizeHome", "CustomizeNow",
                                         "InstallWizard", "SelectCity"),
                         [](const testing::TestParamInfo<const char*>& name)
                         { return std::string(name.param); });
