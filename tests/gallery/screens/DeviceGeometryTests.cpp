// The device's own screens, in every language and on every size of screen: none of their words is
// cut off.
#include "device/ChosenCity.h"
#include "device/HomeScreen.h"
#include "device/NowScreen.h"
#include "device/PaintingRecorder.h"
#include "device/SampleFiles.h"
#include "device/SampleMenu.h"
#include "device/SamplePlugins.h"
#include "device/ShellViews.h"
#include "device/Texts.h"
#include "include/TavLumenarCityDetails.h"
#include "tests/gallery/support/GalleryDevice.h"
#include "tests/gallery/support/GeometryCheck.h"
#include "tests/support/Wait.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace
{

// What the last component of a path is called without its extension.
std::wstring NameOf(const std::wstring& path)
{
    const size_t begin = path.rfind(L'\\') + 1;
    return path.substr(begin, path.rfind(L'.') - begin);
}

// Names of menu items, of what is in the Start Menu, and of plug-ins.
std::set<std::wstring> NamesOnTheDevice()
{
    std::set<std::wstring> names;
    for (const sample::MenuKey& key : sample::MenuKeys())
        if (key.Text)
            names.insert({key.Text, texts::Translate(key.Text)});
    for (const sample::StartMenuFile& file : sample::StartMenuFiles())
        names.insert(NameOf(file.Path));
    for (const sample::PluginKey& plugin : sample::PluginKeys())
        if (plugin.Text)
            names.insert({plugin.Text, texts::Translate(plugin.Text)});
    return names;
}

constexpr const wchar_t* kCityName = L"Lisbon";
constexpr wchar_t kCountry[] = L"PT";
constexpr wchar_t kZone[] = L"Europe/Lisbon";

// A city as the database gives it, with everything that the home screen can show of it.
void ChooseCity()
{
    CITYDETAILS details = {};
    details.version = TAVLUMENAR_CITY_DETAILS_VERSION;
    details.latitude = 38733333;
    details.longitude = -9150000;
    std::memcpy(details.country, kCountry, sizeof(kCountry));
    std::memcpy(details.timeZone, kZone, sizeof(kZone));
    CITYINFO city = {};
    lstrcpyW(reinterpret_cast<wchar_t*>(city.name), kCityName);
    city.hasDetails = 1;
    std::memcpy(city.details, &details, sizeof(details));
    EXPECT_TRUE(SaveChosenCity(city));
}

void HandleWaitingMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

class DeviceGeometryIn : public testing::TestWithParam<std::string>
{
protected:
    // Everything that the view draws until it has come to rest.
    std::vector<painting::DrawnText> Draw(const wchar_t* view)
    {
        recorder.Take();
        EXPECT_TRUE(ShowShellView(home, view));
        std::vector<painting::DrawnText> drawn;
        WaitUntil(
            [&]
            {
                HandleWaitingMessages();
                // The Now screen draws on a thread of its own.
                SendMessageW(now.Window(), WM_NULL, 0, 0);
                const std::vector<painting::DrawnText> more = recorder.Take();
                drawn.insert(drawn.end(), more.begin(), more.end());
                return more.empty() && !drawn.empty();
            });
        return drawn;
    }

    CGalleryDevice device{GetParam()};
    painting::CTextRecorder recorder;
    CTopBar topBar;
    CNowScreen now;
    CHomeScreen home{now};
};

} // namespace

TEST_P(DeviceGeometryIn, TheScreensOfTheDeviceShowTheirWordsWhole)
{
    const std::set<std::wstring> names = NamesOnTheDevice();
    home.Show();
    for (const char* view : {"home", "settings", "launcher-menu", "launcher-menu-list",
                             "launcher-menu-hardware", "now", "now-professional"})
    {
        const std::string name = view;
        CGeometryCheck check(GetParam(), view);
        check.Drawn(Draw(std::wstring(name.begin(), name.end()).c_str()), names);
        check.SoftKeys(home.Window());
    }
}

TEST_P(DeviceGeometryIn, TheHomeScreenShowsTheChosenCityWhole)
{
    const std::set<std::wstring> names = NamesOnTheDevice();
    ChooseCity();
    home.Show();
    const std::vector<painting::DrawnText> drawn = Draw(L"home");
    CGeometryCheck(GetParam(), "home").Drawn(drawn, names);
    EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(),
                            [](const painting::DrawnText& text)
                            { return text.Text.find(kCityName) != std::wstring::npos; }));
}

INSTANTIATE_TEST_SUITE_P(All, DeviceGeometryIn, testing::ValuesIn(DeviceLanguages()), LanguageName);
