// Key paths: the layers' counterparts, names, link texts.
#include "menu/MenuPaths.h"

#include "menu/MenuKeys.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

const std::wstring kProduct = kMenuRootPath;
const std::wstring kShared = kSharedRootPath;
const std::wstring kCustom = kCustomizeRootPath;

TEST(MenuPaths, TheLayersAndTheRatingsLieWhereTheShellLooksForThem)
{
    EXPECT_EQ(L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root", kProduct);
    EXPECT_EQ(L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\1.0", kShared);
    EXPECT_EQ(L"\\SOFTWARE\\Orvane\\Shared\\Tav Menu\\Customize", kCustom);
    EXPECT_EQ(kProduct + L"\\Settings", kSettingsBranchPath);
    EXPECT_EQ(kProduct + L"\\Programs", kProgramsBranchPath);
    EXPECT_EQ(std::wstring(L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings"), kRatingsRootPath);
}

TEST(MenuPaths, ProductAndSharedPathsMirrorIntoTheCustomisationLayer)
{
    EXPECT_EQ(kCustom + L"\\Programs\\Games", MirrorPath(kProduct + L"\\Programs\\Games"));
    EXPECT_EQ(kCustom + L"\\Tools", MirrorPath(kShared + L"\\Tools"));
    EXPECT_EQ(kCustom, MirrorPath(kProduct));
    EXPECT_EQ(kCustom, MirrorPath(kShared));
}

TEST(MenuPaths, AUserItemIsItsOwnMirror)
{
    EXPECT_EQ(kCustom + L"\\User 1", MirrorPath(kCustom + L"\\User 1"));
    EXPECT_EQ(L"\\SOFTWARE\\Elsewhere", MirrorPath(L"\\SOFTWARE\\Elsewhere"));
    EXPECT_EQ(L"", MirrorPath(L""));
}

TEST(MenuPaths, LayersAreRecognisedIgnoringCase)
{
    EXPECT_EQ(kCustom + L"\\x", MirrorPath(L"\\software\\ORVANE 2\\tav lumenar\\MENU\\root\\x"));
    EXPECT_TRUE(IsCustomizePath(L"\\software\\orvane\\shared\\tav menu\\CUSTOMIZE\\x"));
    EXPECT_FALSE(IsCustomizePath(kShared));
}

TEST(MenuPaths, APathThatOnlyBeginsLikeARootIsTakenByTheSameRule)
{
    // No backslash is asked for behind the root.
    EXPECT_EQ(kCustom + L"X\\a", MirrorPath(kProduct + L"X\\a"));
    EXPECT_TRUE(IsProductPath(kProduct + L"X"));
    EXPECT_FALSE(IsProductPath(kProduct.substr(0, kProduct.size() - 1)));
}

TEST(MenuPaths, AProductPathHasASharedCounterpart)
{
    EXPECT_EQ(kShared + L"\\Games", SharedPath(kProduct + L"\\Games"));
    EXPECT_EQ(kShared, SharedPath(kProduct));
}

TEST(MenuPaths, TheKeyNameIsTheLastComponent)
{
    EXPECT_EQ(L"Games", KeyNameOf(L"\\A\\Games"));
    EXPECT_EQ(L"Games", KeyNameOf(L"\\Games"));
}

TEST(MenuPaths, APathWithoutAKeyNameBreaksABound)
{
    for (const wchar_t* const path : {L"", L"Games", L"\\", L"\\A\\"})
        EXPECT_EQ(kTavBroken, CodeThrownBy([&] { KeyNameOf(path); }))
            << testing::PrintToString(path);
}

TEST(MenuPaths, ALinkIsNamedAfterItsFileUpToTheFirstDot)
{
    EXPECT_EQ(L"Chess", LinkText(L"\\Programs\\Chess.lnk"));
    EXPECT_EQ(L"a", LinkText(L"\\Programs\\a.b.c"));
    EXPECT_EQ(L"Readme", LinkText(L"\\My.Folder\\Readme"));
    EXPECT_EQ(L"Chess", LinkText(L"Chess.exe"));
    EXPECT_EQ(L"", LinkText(L"\\Programs\\.lnk"));
    EXPECT_EQ(L"", LinkText(L"\\Programs\\"));
    EXPECT_EQ(L"", LinkText(L""));
}

} // namespace
