#include "device/LauncherMenu.h"

#include <algorithm>

#include "device/LauncherIcons.h"
#include "device/UsageData.h"
#include "device/Usage.h"
#include "menu/MenuKeys.h"
#include "menu/ProgramScanData.h"
#include "menu/Rating.h"
#include "platform/os/Text.h"

namespace
{

CMenuItemPtr FindBelow(const CMenuItemPtr& item, const std::wstring& keyPath)
{
    if (!item || os::EqualNoCase(item->KeyPath, keyPath))
        return item;
    for (const CMenuItemPtr& child : item->Children)
        if (CMenuItemPtr found = FindBelow(child, keyPath))
            return found;
    return nullptr;
}

// The key paths from an item up to the root.
std::vector<std::wstring> WayUp(const CMenuItem* item)
{
    std::vector<std::wstring> way;
    for (; item; item = item->Parent)
        way.push_back(item->KeyPath);
    return way;
}

ShellEntry EntryOfProgram(const Program& program)
{
    if (!program.IsFolder)
        return EntryOfFile(program.Path);
    ShellEntry entry;
    entry.Text = program.Text;
    entry.Icon.Number = icons::kFolder;
    entry.Icon.Fallback = icons::kFolder;
    entry.IsMenu = true;
    entry.Path = program.Path;
    return entry;
}

} // namespace

CLauncherMenu::CLauncherMenu() : m_tree(true) {}

void CLauncherMenu::Reload()
{
    const std::vector<std::wstring> way = WayUp(m_open.get());
    m_open = nullptr;
    m_entries.clear();
    m_tree.Load();
    m_open = m_tree.Root;
    for (const std::wstring& keyPath : way)
    {
        const CMenuItemPtr found = FindByPath(keyPath);
        if (!found)
            continue;
        m_open = found;
        break;
    }
    LoadEntries();
}

bool CLauncherMenu::IsProgramsOpen() const
{
    return m_open && os::EqualNoCase(m_open->KeyPath, kProgramsBranchPath);
}

void CLauncherMenu::LoadEntries()
{
    m_entries.clear();
    if (!m_open)
        return;
    if (IsProgramsOpen())
        LoadPrograms();
    else
    {
        m_folder.clear();
        for (const CMenuItemPtr& child : m_open->Children)
            if (!child->Inactive)
                m_entries.push_back(EntryOf(child));
    }
    OrderByUse();
    m_isGrid = m_open->GetDrawType() == MenuDrawType::Grid;
    m_isForHardwareKeys = m_isGrid && (m_open->GetRtFlags() & kRtHardwareNavigation);
}

// A folder that has gone, or shows nothing any more, gives way to the branch itself.
void CLauncherMenu::LoadPrograms()
{
    const std::vector<Program> programs = ReadPrograms();
    const auto folder =
        std::find_if(programs.begin(), programs.end(),
                     [this](const Program& program)
                     { return program.IsFolder && os::EqualNoCase(program.Path, m_folder); });
    if (folder == programs.end())
        m_folder.clear();
    for (const Program& program : folder == programs.end() ? programs : folder->Files)
        m_entries.push_back(EntryOfProgram(program));
}

// Equally used ones, and those that were never used, keep the menu's order.
void CLauncherMenu::OrderByUse()
{
    const std::wstring name = m_open->GetRating();
    if (!(m_open->GetRtFlags() & kRtMostUsedFirst) || name.empty())
        return;
    const Ratings::CRating list(name);
    const auto uses = [&](const ShellEntry& entry)
    { return entry.Name.empty() ? 0 : usage::UsesOf(list.Entries, entry.Name, os::FoldCase); };
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [&](const ShellEntry& a, const ShellEntry& b) { return uses(a) > uses(b); });
}

std::wstring CLauncherMenu::Title() const
{
    if (!m_folder.empty())
        return programs::DisplayText(m_folder);
    return m_open && m_open->Parent ? m_open->Text : std::wstring();
}

int CLauncherMenu::HiddenCount() const
{
    if (!m_tree.Root)
        return 0;
    const auto& items = m_tree.Root->Children;
    return static_cast<int>(std::count_if(items.begin(), items.end(),
                                          [](const CMenuItemPtr& item) { return item->Inactive; }));
}

bool CLauncherMenu::Open(const ShellEntry& entry)
{
    if (!entry.IsMenu)
        return false;
    if (entry.Item)
        m_open = entry.Item;
    // By value: the entries go.
    m_folder = std::wstring(entry.Item ? L"" : entry.Path);
    LoadEntries();
    return true;
}

bool CLauncherMenu::Back()
{
    if (!m_folder.empty())
        m_folder.clear();
    else if (m_open && m_open->Parent)
        m_open = CMenuItemPtr(m_open->Parent);
    else
        return false;
    LoadEntries();
    return true;
}

void CLauncherMenu::GoToTop()
{
    m_open = m_tree.Root;
    m_folder.clear();
    LoadEntries();
}

void CLauncherMenu::CountUse(const ShellEntry& entry) const
{
    if (m_open && !entry.Name.empty())
        usage::CountInMenu(*m_open, entry.Name);
}

CMenuItemPtr CLauncherMenu::FindByPath(const std::wstring& keyPath) const
{
    return FindBelow(m_tree.Root, keyPath);
}
