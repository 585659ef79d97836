// Which names of pages the help viewer opens at all. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

namespace help
{

enum class PageName
{
    // Below the folders where help is kept: "TavLumenar.htm", "more\Page.html".
    Relative,
    // On one of the device's drives, in full: "C:\Help\Page.htm", "\Windows\Page.htm".
    Absolute,
    // A name on the network or of the system's own kind, or relative to a drive's current folder.
    ForeignPlace,
    // A name that climbs out of a folder with "..".
    LeavesFolder,
    // Neither .htm nor .html.
    NoPage,
    // Characters that no file's name has, or too many.
    Malformed
};

// Judges a name as given; both kinds of slashes are taken.
PageName JudgePageName(StringView16 name);

// Whether the link's target is a page or topic that the viewer shows itself, rather than an address
// of the network.
bool IsOwnTarget(StringView16 target);

} // namespace help
