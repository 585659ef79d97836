// The rating lists as the registry keeps them, one key per list below the ratings root: launch
// targets in the order of their use, with a weight for each. One of them is global: it feeds the
// home screen, and the home dialog pins and unpins its entries.
#pragma once

#include "platform/Win.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "menu/RatingData.h"

class CVORegistry;

namespace Ratings
{

// Throughout: registry failures are silent, an unreadable list is empty; memory that runs out
// throws CTavException 0x8007000E.

// One list.
class CRating
{
public:
    // Reads the list of that name; a missing one is empty.
    explicit CRating(const std::wstring& name);
    // The same from the list's open key.
    CRating(const std::wstring& name, CVORegistry& key);

    // Names are matched ignoring case. Nothing is written.
    void Pin(std::wstring_view name);
    void Unpin(std::wstring_view name);

    // Drops unused entries at the end of a long list, gives new ones their numbers and writes
    // everything back; `flush` to persistent storage.
    void Save(bool flush);
    // The same to the list's open key, whose owner flushes it.
    void Save(CVORegistry& key);

    // The list's key below HKEY_LOCAL_MACHINE.
    std::wstring KeyPath() const;

    EntryList Entries;
    std::wstring Name;

private:
    void Read(CVORegistry& key);
};

// Where a list's entries were shown on the home screen: an entry number for each display slot.
class CLayoutHints
{
public:
    // Reads the hints from the list's key. A null list or an empty name throws 0x80070057.
    explicit CLayoutHints(const boost::shared_ptr<CRating>& list,
                          const std::wstring& valueName = L"Layout");

    // Writes the hints back.
    void Save() const;

    std::wstring ValueName;
    boost::shared_ptr<CRating> List;
    std::vector<uint16_t> Slots;
};

// The part of the global list that a display shows.
struct CMruSlots
{
    // Entry names by slot.
    std::vector<std::wstring> Names;
    // The names in the slots below are pinned.
    uint32_t Pinned = 0;

    // Ignores case.
    bool IsPinned(std::wstring_view name) const;
};

enum class TargetKind
{
    Link = 0, // a link or a file, known by its path
    Menu = 1, // a menu item, known by its key path
};

// The name of an entry for a link's or file's path.
std::wstring LinkEntryName(std::wstring_view path);
// The name of an entry for a menu item's key path.
std::wstring MenuEntryName(std::wstring_view keyPath);
// The name under which a target is entered: a menu item whose "File" is a shortcut counts as that
// file.
std::wstring EntryNameOf(const std::wstring& path, TargetKind kind);

// Lays out the first `count` entries of the global list, where they were shown last as far as
// possible. False when the list's lock can't be had; waits for it without limit.
bool ReadGlobalMru(CMruSlots& slots, uint32_t count);

// Pins or unpins an entry of the global list. A menu item whose "File" is a shortcut counts as that
// file. False, changing nothing, when the list's lock can't be had within `timeout` milliseconds.
bool SetGlobalPinned(bool pin, const std::wstring& path, TargetKind kind, DWORD timeout);

} // namespace Ratings
