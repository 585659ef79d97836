// What stands in the home screen's slots: the first entries of the global list of what is used,
// laid out by the module's own rules.
#pragma once

#include <cstdint>
#include <vector>

#include "device/LauncherMenu.h"
#include "device/ShellEntry.h"

struct HomeEntries
{
    // By slot; those in the slots below `Pinned` are pinned.
    std::vector<ShellEntry> Slots;
    int Pinned = 0;
};

// How many entries the global list has, and how many of them are pinned.
struct ListLength
{
    int Entries = 0;
    int Pinned = 0;
};
ListLength ReadListLength();

// Reads the slots of `count` entries; what the entries are is looked up in `menu`. False, with
// `entries` untouched, when another process keeps the list for too long. Throws CTavException.
bool ReadHomeEntries(const CLauncherMenu& menu, int count, HomeEntries& entries);
