// Where things stand on the home screen and on the launcher's pages: arithmetic on rectangles, for
// any screen size and resolution.
#pragma once

#include "platform/Win.h"

#include <vector>

// The home screen: the date, the way to the Now screen, a strip of the launcher's first items, and
// the list of dialogs.
struct HomeLayout
{
    RECT Date;
    // Within the date's line: leads to the Now screen.
    RECT NowLink;
    std::vector<RECT> Strip;
    RECT StripLine;
    std::vector<RECT> Entries;
};

// `client` is the room between the bars; lengths inside are logical pixels at `dpi`.
HomeLayout LayOutHome(const RECT& client, int dpi, int entryCount);

// One page of the launcher menu: the title line, and the cells of as many items as fit.
struct MenuLayout
{
    RECT Title;
    int Columns = 1;
    std::vector<RECT> Cells;
};

// `first` is the item shown in the first cell; a multiple of the column count.
MenuLayout LayOutMenu(const RECT& client, int dpi, bool grid, int itemCount, int first);

// The first item to show so that `selected` is on the page, given how many columns and cells a page
// has; changes `first` as little as possible.
int ScrollToShow(int selected, int first, int columns, int cellsPerPage);

// How many items a whole page holds.
int CellsPerPage(const RECT& client, int dpi, bool grid);
