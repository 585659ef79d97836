// The shell's command line.
#include "device/Options.h"

#include <gtest/gtest.h>

TEST(Options, NothingAskedOpensTheHomeScreen)
{
    const Options options = ReadOptions({});
    EXPECT_TRUE(options.Error.empty());
    EXPECT_TRUE(options.Dialog.empty());
    EXPECT_TRUE(options.Picture.empty());
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
    EXPECT_EQ(L"home", options.Picture);
    EXPECT_EQ(L"p.png", options.PictureFile);
    EXPECT_TRUE(options.Seed);
    EXPECT_TRUE(options.Fresh);
}

TEST(Options, UnknownWordsAndMissingValuesAreErrors)
{
    EXPECT_EQ(L"unknown option --colour", ReadOptions({L"--colour"}).Error);
    EXPECT_EQ(L"--dialog needs a value", ReadOptions({L"--dialog"}).Error);
    EXPECT_FALSE(ReadOptions({L"--picture", L"home"}).Error.empty());
}
