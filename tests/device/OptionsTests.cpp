// The shell's command line.
#include "device/Options.h"

#include <gtest/gtest.h>

TEST(Options, NothingAskedOpensTheHomeScreen)
{
    const Options options = ReadOptions({});
    EXPECT_TRUE(options.Error.empty());
    EXPECT_TRUE(options.Dialog.empty());
    EXPECT_TRUE(options.Pictures.empty());
    EXPECT_FALSE(options.Seed);
    EXPECT_FALSE(options.Fresh);
}

TEST(Options, EverythingIsUnderstoodInAnyOrder)
{
    const Options options = ReadOptions({L"--fresh", L"--report", L"r", L"--picture", L"home",
                                         L"p.png", L"--dialog", L"d", L"--seed"});
    EXPECT_EQ(L"", options.Error);
    EXPECT_EQ(L"d", options.Dialog);
    EXPECT_EQ(L"r", options.Report);
    ASSERT_EQ(1u, options.Pictures.size());
    EXPECT_EQ(L"home", options.Pictures[0].View);
    EXPECT_EQ(L"p.png", options.Pictures[0].File);
    EXPECT_TRUE(options.Seed);
    EXPECT_TRUE(options.Fresh);
}

TEST(Options, PicturesAreTakenInTheOrderInWhichTheyAreAskedFor)
{
    const Options options =
        ReadOptions({L"--picture", L"now", L"1.png", L"--picture", L"home", L"2.png"});
    EXPECT_EQ(L"", options.Error);
    ASSERT_EQ(2u, options.Pictures.size());
    EXPECT_EQ(L"now", options.Pictures[0].View);
    EXPECT_EQ(L"1.png", options.Pictures[0].File);
    EXPECT_EQ(L"home", options.Pictures[1].View);
    EXPECT_EQ(L"2.png", options.Pictures[1].File);
}

TEST(Options, UnknownWordsAndMissingValuesAreErrors)
{
    EXPECT_EQ(L"unknown option --colour", ReadOptions({L"--colour"}).Error);
    EXPECT_EQ(L"--dialog needs a value", ReadOptions({L"--dialog"}).Error);
    EXPECT_FALSE(ReadOptions({L"--picture", L"home"}).Error.empty());
}
