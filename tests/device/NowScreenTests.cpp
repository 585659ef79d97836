// The Now screen: which panels it has, how it takes a new layout, and the wizard's pictures of it.
#include "device/NowScreen.h"

#include <gmock/gmock.h>

#include "device/Keys.h"
#include "device/NowContents.h"
#include "device/WizardPictures.h"
#include "platform/Bytes.h"
#include "skin/Skin.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/Wait.h"

namespace
{

using testing::ElementsAre;

std::vector<std::wstring> Titles(const std::vector<NowPanel>& panels)
{
    std::vector<std::wstring> titles;
    for (const NowPanel& panel : panels)
        titles.push_back(panel.Title);
    return titles;
}

class NowWindow : public testing::Test
{
protected:
    void SetType(const wchar_t* type) { m_hive.SetText(keys::kNowLayout, L"Type", type); }

    bool WaitForLayout(const CNowScreen& screen, LayoutType type)
    {
        return WaitUntil([&] { return screen.Layout() == type; });
    }

    CRegistrySandbox m_hive;
};

} // namespace

TEST(NowPanels, WithoutPluginsTheDefaultsStandInTheOrderOfTheirKinds)
{
    const std::vector<NowPanel> panels = NowPanelsOf({});
    EXPECT_THAT(Titles(panels), ElementsAre(L"Calendar", L"E-mail", L"Weather", L"Profile"));
    for (const NowPanel& panel : panels)
        EXPECT_EQ(2u, panel.Lines.size()) << panel.Title;
}

TEST(NowPanels, APluginInUseTakesThePlaceOfTheDefaultOfItsKind)
{
    EXPECT_THAT(Titles(NowPanelsOf({{L"a", L"Sky", 2, true}, {L"b", L"Unused", 0, false}})),
                ElementsAre(L"Calendar", L"E-mail", L"Sky", L"Profile"));
}

TEST(NowPanels, PluginsOfOneKindFollowEachOther)
{
    EXPECT_THAT(
        Titles(NowPanelsOf(
            {{L"a", L"Ring", 3, true}, {L"b", L"Week", 0, true}, {L"c", L"Birthdays", 0, true}})),
        ElementsAre(L"Week", L"Birthdays", L"E-mail", L"Weather", L"Ring"));
}

TEST_F(NowWindow, IsFoundByItsClassAndHiddenAtFirst)
{
    const CNowScreen screen;
    ASSERT_NE(nullptr, screen.Window());
    EXPECT_EQ(screen.Window(), FindWindowW(L"TavNow_MainWindow", nullptr));
    EXPECT_FALSE(IsWindowVisible(screen.Window()));
    EXPECT_NE(GetCurrentThreadId(), GetWindowThreadProcessId(screen.Window(), nullptr));
}

TEST_F(NowWindow, BeginsWithTheStoredLayout)
{
    SetType(L"Detailed");
    const CNowScreen screen;
    EXPECT_EQ(LayoutType::Professional, screen.Layout());
}

TEST_F(NowWindow, TakesANewLayoutWhenItIsToldOfOne)
{
    const CNowScreen screen;
    ASSERT_EQ(LayoutType::Classic, screen.Layout());
    SetType(L"Detailed");
    PostMessageW(screen.Window(), 0x8067, 0, 0);
    EXPECT_TRUE(WaitForLayout(screen, LayoutType::Professional));
    SetType(L"Simple");
    PostMessageW(screen.Window(), 0x8067, 0, 0);
    EXPECT_TRUE(WaitForLayout(screen, LayoutType::Classic));
}

TEST_F(NowWindow, KeepsItsLayoutUntilItIsTold)
{
    const CNowScreen screen;
    SetType(L"Detailed");
    SendMessageW(screen.Window(), WM_NULL, 0, 0);
    EXPECT_EQ(LayoutType::Classic, screen.Layout());
}

TEST_F(NowWindow, TheModulesAnnouncementReachesIt)
{
    const CNowScreen screen;
    SaveLayoutType(LayoutType::Professional);
    AnnounceLayoutType();
    EXPECT_TRUE(WaitForLayout(screen, LayoutType::Professional));
}

TEST_F(NowWindow, IsShownWhereItIsPutAndHiddenAgain)
{
    const CNowScreen screen;
    screen.Show({10, 40, 110, 140});
    RECT place = {};
    GetWindowRect(screen.Window(), &place);
    EXPECT_TRUE(IsWindowVisible(screen.Window()));
    EXPECT_EQ(10, place.left);
    EXPECT_EQ(140, place.bottom);
    EXPECT_NE(screen.Window(), GetForegroundWindow());
    screen.Hide();
    EXPECT_FALSE(IsWindowVisible(screen.Window()));
}

TEST_F(NowWindow, ScrollsAsFarAsThereAreMorePanelsThanFit)
{
    for (const wchar_t* name : {L"A", L"B", L"C", L"D", L"E", L"F", L"G"})
    {
        const std::wstring key = std::wstring(keys::kPlugins) + L"\\" + name;
        m_hive.SetText(key.c_str(), L"Text", name);
        m_hive.SetDword(key.c_str(), L"Kind", 0);
        m_hive.SetDword(key.c_str(), L"Inactive", 0);
    }
    SetType(L"Detailed");
    const CNowScreen screen;
    screen.Show({0, 0, 200, 140});
    ASSERT_TRUE(WaitUntil([&] { return screen.PanelCount() == 10; }));
    screen.Scroll(-1);
    screen.Scroll(1);
    EXPECT_TRUE(WaitUntil([&] { return screen.FirstPanel() == 1; }));
    screen.Scroll(100);
    EXPECT_TRUE(WaitUntil([&] { return screen.FirstPanel() > 1; }));
    EXPECT_LT(screen.FirstPanel(), 10);
    // All of them fit on a larger screen.
    screen.Show({0, 0, 200, 2000});
    EXPECT_TRUE(WaitUntil([&] { return screen.FirstPanel() == 0; }));
}

TEST_F(NowWindow, ShowsExactlyThePluginsInUseOnceItIsToldToReadThemAnew)
{
    const CNowScreen screen;
    ASSERT_EQ(4, screen.PanelCount());
    const std::wstring key = std::wstring(keys::kPlugins) + L"\\A";
    m_hive.SetText(key.c_str(), L"Text", L"A");
    m_hive.SetDword(key.c_str(), L"Kind", 0);
    m_hive.SetDword(key.c_str(), L"Inactive", 0);
    const std::wstring second = std::wstring(keys::kPlugins) + L"\\B";
    m_hive.SetText(second.c_str(), L"Text", L"B");
    m_hive.SetDword(second.c_str(), L"Kind", 0);
    m_hive.SetDword(second.c_str(), L"Inactive", 0);
    screen.Refresh();
    EXPECT_TRUE(WaitUntil([&] { return screen.PanelCount() == 5; }));
    m_hive.SetDword(second.c_str(), L"Inactive", 1);
    screen.Refresh();
    EXPECT_TRUE(WaitUntil([&] { return screen.PanelCount() == 4; }));
}

TEST(WizardPictures, ShowTheTwoLayoutsAtTheSameSize)
{
    const ScreenPixels classic = wizard::DrawPicture(LayoutType::Classic);
    const ScreenPixels professional = wizard::DrawPicture(LayoutType::Professional);
    EXPECT_EQ(96, classic.Width);
    EXPECT_EQ(classic.Width, professional.Width);
    EXPECT_EQ(classic.Height, professional.Height);
    EXPECT_FALSE(classic == professional);
}

TEST(WizardPictures, ABitmapFileHasItsLowestRowFirst)
{
    ScreenPixels pixels;
    pixels.Width = 1;
    pixels.Height = 2;
    pixels.Bytes = {1, 2, 3, 0, 4, 5, 6, 0};
    const std::vector<uint8_t> file = wizard::BitmapFile(pixels);
    ASSERT_EQ(62u, file.size());
    EXPECT_EQ(62u, bytes::GetU32LE(&file[2]));
    EXPECT_EQ(4, file[54]);
    EXPECT_EQ(1, file[58]);
}

TEST(WizardPictures, AreWrittenWhereTheWizardReadsThem)
{
    wchar_t temp[MAX_PATH];
    GetTempPathW(MAX_PATH, temp);
    const std::wstring folder =
        std::wstring(temp) + L"tav-wizard-" + std::to_wstring(GetCurrentProcessId());
    ASSERT_TRUE(wizard::WritePictures(folder));
    {
        skin::CSkin skin;
        ASSERT_TRUE(skin.Storage().Open((folder + L"\\qa_wizard.dat").c_str()));
        for (const wchar_t* name : {L"Classic.bmp", L"Professional.bmp"})
        {
            BITMAP info = {};
            GetObjectW(skin.Storage().Bitmap(name, nullptr, true, false), sizeof(info), &info);
            EXPECT_EQ(96, info.bmWidth) << name;
            EXPECT_EQ(107, info.bmHeight) << name;
        }
    }
    DeleteFileW((folder + L"\\qa_wizard.dat\\Classic.bmp").c_str());
    DeleteFileW((folder + L"\\qa_wizard.dat\\Professional.bmp").c_str());
    RemoveDirectoryW((folder + L"\\qa_wizard.dat").c_str());
    EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
}
