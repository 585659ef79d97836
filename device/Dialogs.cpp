#include "device/Dialogs.h"

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
    {L"customize-menu", L"Customize Menu", 118, RunCustomizeMenu},
    {L"customize-home", L"Manage Pinned", 101, nullptr},
    {L"customize-now", L"Customize Now Screen", 138, nullptr},
    {L"install-wizard", L"Choose Layout", 130, nullptr},
    {L"select-city", L"Select City", 131, nullptr},
};

const DialogEntry* FindDialogEntry(const std::wstring& name)
{
    for (const DialogEntry& entry : kDialogs)
        if (name == entry.Name)
            return &entry;
    return nullptr;
}
