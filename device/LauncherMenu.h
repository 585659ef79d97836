// The launcher menu as the shell shows it: the customised tree, read with the module's own model,
// and the menu in it that is open at the moment.
#pragma once

#include <string>
#include <vector>

#include "device/ProgramBranch.h"
#include "device/ShellEntry.h"
#include "menu/MenuItem.h"
#include "menu/MenuTree.h"

class CLauncherMenu
{
public:
    CLauncherMenu();

    // Reads the menu anew. The menu that was open stays open; when it is gone, the nearest one
    // above it is opened. Throws CTavException.
    void Reload();

    // What the open menu shows: hidden items left out, in order, or the most used first where the
    // menu is set so.
    const std::vector<ShellEntry>& Entries() const { return m_entries; }
    // The name of the open menu; empty for the first level.
    std::wstring Title() const;
    bool IsGrid() const { return m_isGrid; }
    // A grid that is meant for the d-pad and the number keys.
    bool IsForHardwareKeys() const { return m_isForHardwareKeys; }
    // How many items of the first level are hidden.
    int HiddenCount() const;

    // Opens a menu; false, doing nothing, for an entry that isn't one.
    bool Open(const ShellEntry& entry);
    // Goes up one level; false at the first level.
    bool Back();
    // Goes to the first level.
    void GoToTop();
    // Counts a use of an entry in the open menu's own list.
    void CountUse(const ShellEntry& entry) const;

    // The item with that key path, ignoring case; null when the menu has none.
    CMenuItemPtr FindByPath(const std::wstring& keyPath) const;

private:
    bool IsProgramsOpen() const;
    void LoadEntries();
    void LoadPrograms();
    void OrderByUse();

    CMenuTree m_tree;
    CMenuItemPtr m_open;
    // Within the Programs branch: the path of the folder that is open; empty for the branch itself.
    std::wstring m_folder;
    std::vector<ShellEntry> m_entries;
    bool m_isGrid = false;
    bool m_isForHardwareKeys = false;
};
