#include "device/ShellViews.h"

#include "device/HomeScreen.h"
#include "dialogs/wizard/LayoutType.h"
#include "menu/MenuKeys.h"

namespace
{

// A menu of the sample device that is meant for the d-pad.
constexpr const wchar_t* kHardwareMenu = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\Games";

// The Now screen takes its layout on a thread of its own.
bool ShowNow(CHomeScreen& home, LayoutType type)
{
    SaveLayoutType(type);
    AnnounceLayoutType();
    home.GoTo(PageId::Now);
    return true;
}

} // namespace

bool ShowShellView(CHomeScreen& home, const std::wstring& view)
{
    if (view == L"home")
        home.GoTo(PageId::Home);
    else if (view == L"settings")
        home.GoTo(PageId::Settings);
    else if (view == L"launcher-menu")
        home.GoTo(PageId::Launcher);
    else if (view == L"launcher-menu-list")
        return home.ShowMenu(kSettingsBranchPath);
    else if (view == L"launcher-menu-hardware")
        return home.ShowMenu(kHardwareMenu);
    else if (view == L"now")
        return ShowNow(home, LayoutType::Classic);
    else if (view == L"now-professional")
        return ShowNow(home, LayoutType::Professional);
    else
        return false;
    return true;
}
