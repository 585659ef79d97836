#include "device/Dialogs.h"

#include <algorithm>

#include "device/ChosenCity.h"
#include "device/CityReport.h"
#include "device/Texts.h"
#include "dialogs/now/PluginList.h"
#include "dialogs/wizard/LayoutType.h"
#include "include/TavLumenarDialogs.h"
#include "menu/Rating.h"

namespace
{

DialogResult RunCustomizeMenu(HWND owner)
{
    return {CustomizeMenu(owner, 0, 0, 0), {}};
}

// As many as the home screen of such a device has room for.
constexpr DWORD kMostPinned = 8;

DialogResult RunCustomizeHome(HWND owner)
{
    return {CustomizeHome(owner, kMostPinned, 0, 0), {}};
}

std::wstring PinsInWords()
{
    const Ratings::CRating list(L"GlobalMRUList");
    const auto pinned =
        std::count_if(list.Entries.begin(), list.Entries.end(),
                      [](const Ratings::CEntry& entry) { return entry.IsPinned(); });
    return texts::Translate(texts::kPinned, std::to_wstring(pinned));
}

DialogResult RunCustomizeNow(HWND owner)
{
    return {CustomizeNow(owner, 0, 0, 0), {}};
}

std::wstring PluginsInWords()
{
    const std::vector<Plugin> plugins = PeekPlugins();
    const auto used = std::count_if(plugins.begin(), plugins.end(),
                                    [](const Plugin& plugin) { return plugin.IsUsed; });
    return texts::Translate(texts::kInUse, std::to_wstring(used));
}

// The wizard takes the active window for its owner by itself.
DialogResult RunInstallWizard(HWND)
{
    return {InstallWizard(0, 0, 0, 0), {}};
}

std::wstring LayoutInWords()
{
    return texts::Translate(LoadLayoutType() == LayoutType::Professional ? texts::kProfessional
                                                                         : texts::kClassic);
}

// The city that was chosen last is passed in, and the new one kept.
DialogResult RunSelectCity(HWND owner)
{
    const CITYINFO before = LoadChosenCity();
    CITYINFO city = before;
    const BOOL confirmed = SelectCity(owner, &city, 0);
    std::wstring words = report::DescribeSelection(before, city, confirmed != FALSE);
    if (confirmed)
        words += SaveChosenCity(city) ? L"The device keeps it for the next time.\n"
                                      : L"The device could not keep it.\n";
    return {confirmed, words};
}

std::wstring ChosenCityInWords()
{
    return report::CityPlace(LoadChosenCity());
}

} // namespace

const DialogEntry kDialogs[kDialogCount] = {
    {L"customize-menu", texts::kCustomizeMenu, 129, RunCustomizeMenu, nullptr},
    {L"customize-home", texts::kCustomizeHome, 101, RunCustomizeHome, PinsInWords},
    {L"customize-now", texts::kCustomizeNow, 138, RunCustomizeNow, PluginsInWords},
    {L"install-wizard", texts::kInstallWizard, 130, RunInstallWizard, LayoutInWords},
    {L"select-city", texts::kSelectCity, 123, RunSelectCity, ChosenCityInWords},
};

const DialogEntry* FindDialogEntry(const std::wstring& name)
{
    for (const DialogEntry& entry : kDialogs)
        if (name == entry.Name)
            return &entry;
    return nullptr;
}
