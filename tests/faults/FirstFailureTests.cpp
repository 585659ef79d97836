// Memory that is missing from the module's very first call on: the compiler's runtime must not need
// any for telling so.
#include "frame/TavException.h"
#include "tests/faults/SessionRun.h"

#include <gtest/gtest.h>

#include <string_view>

namespace
{

// A call of malloc and all later ones.
FaultPoint NoMemoryFrom(unsigned call)
{
    size_t function = 0;
    while (std::string_view(kFaultFunctions[function].name) != "malloc")
        ++function;
    return {function, call, true};
}

} // namespace

TEST(FirstFailure, WithoutAnyMemoryNoDialogIsBegun)
{
    CSessionRun run("CustomizeMenu", SessionEnd::Done);
    const SessionOutcome outcome = run.Call(NoMemoryFrom(1));
    EXPECT_EQ(FALSE, outcome.result);
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), outcome.lastError);
    EXPECT_EQ(0, run.Injector().Writes().size());
    EXPECT_TRUE(run.Call({}).tookAllSteps) << "the next call works";
}

// The first of them are what the module keeps ready for throwing.
TEST(FirstFailure, IsThrownLikeAnyOther)
{
    int thrown = 0;
    for (unsigned call = 1; call < 40; call += 3)
    {
        CSessionRun run("CustomizeMenu", SessionEnd::Done);
        const SessionOutcome outcome = run.Call(NoMemoryFrom(call));
        EXPECT_EQ(outcome.result ? FALSE : TRUE, outcome.code.has_value()) << call;
        thrown += outcome.code == kTavOutOfMemory;
    }
    EXPECT_GT(thrown, 5);
}
