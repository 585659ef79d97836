// One thing that can be opened from the home screen or the launcher, with what is shown of it.
#pragma once

#include <string>

#include "menu/MenuItem.h"

// Where an entry's picture comes from.
struct EntryIcon
{
    // The launcher's icon of that number; 0 when the file has one.
    int Number = 0;
    std::wstring File;
    // The number of the icon to show when there is no other.
    int Fallback = 0;
};

struct ShellEntry
{
    std::wstring Text;
    // What it is called in the lists of what is used: "l:" and a path, or "m:" and a key path.
    // Empty for a folder of the Start Menu, which has no place in them.
    std::wstring Name;
    EntryIcon Icon;
    // Opens in the launcher.
    bool IsMenu = false;
    // What it leads to isn't on the device any more.
    bool IsGone = false;
    // Null for a file or folder of the Start Menu and for an item that is gone.
    CMenuItemPtr Item;
    // The file to start, or the Start Menu's folder; empty when there is none.
    std::wstring Path;
};

// The entry of a menu item. Reads the registry and looks for the file of a link.
ShellEntry EntryOf(const CMenuItemPtr& item);

// The entry of a file, by its path; called as the program scan calls it.
ShellEntry EntryOfFile(const std::wstring& path);

// The entry of a menu item that is in none of the menu's layers any more.
ShellEntry EntryOfMissingItem(const std::wstring& keyPath);
