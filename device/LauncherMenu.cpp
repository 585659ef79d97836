#include "device/LauncherMenu.h"

#include "device/LauncherIcons.h"
#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

CLauncherMenu::CLauncherMenu() : m_tree(true) {}

void CLauncherMenu::Reload()
{
    m_open = nullptr;
    m_tree.Load();
    m_open = m_tree.Root.get();
}

std::vector<CMenuItemPtr> CLauncherMenu::Items() const
{
    std::vector<CMenuItemPtr> shown;
    if (!m_open)
        return shown;
    for (const CMenuItemPtr& child : m_open->Children)
        if (!child->Inactive)
            shown.push_back(child);
    return shown;
}

int CLauncherMenu::HiddenCount() const
{
    return m_open ? m_open->ChildCount() - static_cast<int>(Items().size()) : 0;
}

std::wstring CLauncherMenu::Title() const
{
    return m_open && m_open->Parent ? m_open->Text : std::wstring();
}

bool CLauncherMenu::IsGrid() const
{
    return m_open && m_open->GetDrawType() == MenuDrawType::Grid;
}

bool CLauncherMenu::Open(const CMenuItemPtr& item)
{
    if (!IsMenu(*item))
        return false;
    m_open = item.get();
    return true;
}

bool CLauncherMenu::Back()
{
    if (!m_open || !m_open->Parent)
        return false;
    m_open = m_open->Parent;
    return true;
}

bool CLauncherMenu::IsMenu(const CMenuItem& item)
{
    return item.ChildCount() > 0 || item.CanAdd() ||
           os::EqualNoCase(item.KeyPath, kProgramsBranchPath);
}

int CLauncherMenu::IconOf(const CMenuItem& item)
{
    const int32_t chosen = item.GetImage();
    if (chosen != kNoImage)
        return chosen;
    if (!item.GetImagePath().empty())
        return 0;
    // Built-in items bring their icon along in their own key.
    const CVORegistry key(HKEY_LOCAL_MACHINE, item.KeyPath.c_str(), FALSE, FALSE, 0);
    DWORD own = 0;
    if (key.GetDWORD(kImageValue, own) && own >= static_cast<DWORD>(icons::kFirst))
        return static_cast<int>(own);
    return IsMenu(item) ? icons::kFolder : icons::kDocument;
}
