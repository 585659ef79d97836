// The sessions that the sweeps repeat, without any failure: what they are worth.
#include "tests/faults/Sweep.h"

#include <gtest/gtest.h>

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
    unsigned calls = 0;
    for (size_t i = 0; i < kFaultFunctionCount; ++i)
    {
        if (sweep.GoodCalls()[i] && getenv("TAV_TRACE"))
            printf("%s %u\n", kFaultFunctions[i].name, sweep.GoodCalls()[i]);
        calls += sweep.GoodCalls()[i];
    }
    printf("%u points, %zu writes\n", calls, sweep.GoodWrites().size());
    EXPECT_GT(calls, 200u);
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
                         [](const testing::TestParamInfo<const char*>& info)
                         { return std::string(info.param); });
