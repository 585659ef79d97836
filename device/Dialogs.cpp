#include "device/Dialogs.h"

#include "device/Texts.h"
#include "include/TavLumenarDialogs.h"

namespace
{

BOOL RunCustomizeMenu(HWND owner)
{
    return CustomizeMenu(owner, 0, 0, 0);
}

} // namespace

// The exports without a function answer FALSE until their dialogs are written.
const DialogEntry kDialogs[kDialogCount] = {
    {L"customize-menu", texts::kCustomizeMenu, 129, RunCustomizeMenu},
    {L"customize-home", texts::kCustomizeHome, 101, nullptr},
    {L"customize-now", texts::kCustomizeNow, 138, nullptr},
    {L"install-wizard", texts::kInstallWizard, 130, nullptr},
    {L"select-city", texts::kSelectCity, 131, nullptr},
};

const DialogEntry* FindDialogEntry(const std::wstring& name)
{
    for (const DialogEntry& entry : kDialogs)
        if (name == entry.Name)
            return &entry;
    return nullptr;
}
