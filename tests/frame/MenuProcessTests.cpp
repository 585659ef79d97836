// Asking the launcher-menu process, which may be missing, slow, broken or gone.
#include "frame/MenuProcess.h"

#include "tests/support/ImageProcess.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

constexpr DWORD kPatience = 5000;
constexpr char kRecord[] = "record";

bool Ask()
{
    return AskMenuProcess(1234, kRecord, sizeof(kRecord));
}

// Milliseconds that a question took.
ULONGLONG TimeToAsk()
{
    const ULONGLONG begin = GetTickCount64();
    EXPECT_FALSE(Ask());
    return GetTickCount64() - begin;
}

class MenuProcess : public testing::Test
{
protected:
    MenuProcess()
        : process(std::make_unique<CImageProcess>([](const ImageProcessRequest&)
                                                  { return LRESULT{1}; }))
    {
        RefreshMenuProcess();
    }

    std::unique_ptr<CImageProcess> process;
};

} // namespace

TEST_F(MenuProcess, GetsTheCodeAndTheRecord)
{
    EXPECT_TRUE(Ask());
    const auto requests = process->Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(1234u, requests[0].code);
    EXPECT_EQ(0u, requests[0].wParam);
    EXPECT_EQ(std::vector<uint8_t>(std::begin(kRecord), std::end(kRecord)), requests[0].bytes);
}

TEST_F(MenuProcess, IsNotAskedWhenItIsMissing)
{
    process.reset();
    RefreshMenuProcess();
    EXPECT_FALSE(Ask());
    EXPECT_FALSE(HasMenuProcessTimedOut());
}

TEST_F(MenuProcess, IsNotFoundBeforeTheNextRefresh)
{
    process.reset();
    RefreshMenuProcess();
    process =
        std::make_unique<CImageProcess>([](const ImageProcessRequest&) { return LRESULT{1}; });
    EXPECT_FALSE(Ask());
    RefreshMenuProcess();
    EXPECT_TRUE(Ask());
}

TEST_F(MenuProcess, ThatEndedSinceTheRefreshCannotAnswer)
{
    process.reset();
    EXPECT_FALSE(Ask());
    EXPECT_FALSE(HasMenuProcessTimedOut());
}

TEST_F(MenuProcess, ThatDiesWhileItIsAskedCannotAnswer)
{
    process->Behave(ImageProcessManner::Die);
    EXPECT_LT(TimeToAsk(), kPatience);
    EXPECT_FALSE(HasMenuProcessTimedOut());
    EXPECT_FALSE(Ask());
}

TEST_F(MenuProcess, ThatHangsIsGivenUpAfterFiveSecondsAndNotAskedAgain)
{
    process->Behave(ImageProcessManner::Hang);
    const ULONGLONG spent = TimeToAsk();
    EXPECT_GE(spent, kPatience - 100);
    EXPECT_LT(spent, kPatience + 3000);
    EXPECT_TRUE(HasMenuProcessTimedOut());
    EXPECT_LT(TimeToAsk(), kPatience / 10);
    EXPECT_EQ(1u, process->Requests().size());
}

TEST_F(MenuProcess, ThatHungIsAskedAgainAfterARefresh)
{
    process->Behave(ImageProcessManner::Hang);
    EXPECT_FALSE(Ask());
    process.reset();
    process =
        std::make_unique<CImageProcess>([](const ImageProcessRequest&) { return LRESULT{1}; });
    RefreshMenuProcess();
    EXPECT_FALSE(HasMenuProcessTimedOut());
    EXPECT_TRUE(Ask());
}
