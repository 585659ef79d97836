// Where the panels of the Now screen stand in either layout: arithmetic on rectangles.
#pragma once

#include "platform/Win.h"

#include <vector>

#include "dialogs/wizard/LayoutType.h"

struct NowLayout
{
    // How many panels fit on the screen.
    int PerPage = 0;
    // The panel that has the first place.
    int First = 0;
    // The places of the panels that are on the screen, all or none of each.
    std::vector<RECT> Panels;
    // Empty when all panels are on the screen.
    RECT ScrollBar = {};
    RECT Thumb = {};
};

// `area` is the room between the bars; lengths inside are logical pixels at `dpi`. `first` is
// bounded so that there are no empty places while panels are left out. Rows, one below the other
// and closer together when there are many, for the Classic layout; cards, two beside each other on
// a wide screen, for the Professional one.
NowLayout LayOutNow(const RECT& area, int dpi, LayoutType type, int panels, int first = 0);
