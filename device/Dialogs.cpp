#include "device/Dialogs.h"

#include "device/ChosenCity.h"
#include "device/CityReport.h"
#include "device/Texts.h"
#include "include/TavLumenarDialogs.h"

namespace
{

DialogResult RunCustomizeMenu(HWND owner)
{
    return {CustomizeMenu(owner, 0, 0, 0), {}};
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

// The exports without a function answer FALSE until their dialogs are written.
const DialogEntry kDialogs[kDialogCount] = {
    {L"customize-menu", texts::kCustomizeMenu, 129, RunCustomizeMenu, nullptr},
    {L"customize-home", texts::kCustomizeHome, 101, nullptr, nullptr},
    {L"customize-now", texts::kCustomizeNow, 138, nullptr, nullptr},
    {L"install-wizard", texts::kInstallWizard, 130, nullptr, nullptr},
    {L"select-city", texts::kSelectCity, 123, RunSelectCity, ChosenCityInWords},
};

const DialogEntry* FindDialogEntry(const std::wstring& name)
{
    for (const DialogEntry& entry : kDialogs)
        if (name == entry.Name)
            return &entry;
    return nullptr;
}
