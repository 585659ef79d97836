// The Programs branch of the menu, which no registry holds: the shortcuts and programs of the
// device's Start Menu folder, as far as the launcher shows them. Fills a branch of a dialog's tree.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include <atlctrls.h>

#include "menu/Rating.h"

class CProgramScan
{
public:
    // Finds the Programs folder; throws CTavException with the code of the last error when there is
    // none. `showIcons` gives the nodes the system's small icons.
    explicit CProgramScan(bool showIcons);

    // Appends nodes for all entries below `parent`, which has no children yet, sorted by text.
    // Their data are their numbers. With `pinned`, nodes of files whose names are pinned there are
    // checked and folders have no check box; null leaves the boxes to the tree. Returns how many it
    // checked. Without the launcher-menu process nothing is shown; it is given up for the rest of
    // the scan when it doesn't answer. Throws CTavException 0x8007000E when memory runs out.
    uint32_t Fill(CTreeViewCtrl tree, HTREEITEM parent, const Ratings::CMruSlots* pinned);

    // The path of an entry of the last Fill; empty for a number that it didn't give.
    std::wstring PathOf(int32_t number) const;

    // The number for one more entry: -1, -2, -3 ... also over several fills, so that none is ever
    // that of a menu item.
    int32_t Add(const std::wstring& path);

    bool ShowIcons;
    std::unordered_map<int32_t, std::wstring> Paths;
    int32_t NextNumber = 0;
    std::wstring ProgramsFolder;
};
