// Where things stand on a page of the launcher menu, and how the selection moves over its items:
// arithmetic, for any screen size and resolution.
#pragma once

#include "platform/Win.h"

#include <vector>

// How a menu is shown.
enum class MenuStyle
{
    List,
    Grid,
    // Three rows of three, numbered as the keys of a phone.
    Numbered,
};

// One page: the title line, and the cells of as many items as fit.
struct MenuLayout
{
    RECT Title;
    // The bar that shows which part of the menu is on the page; empty when all of it is.
    RECT ScrollBar;
    // Its thumb.
    RECT Thumb;
    int Columns = 1;
    std::vector<RECT> Cells;
};

// `client` is the room between the bars. `first` is the item shown in the first cell: a multiple of
// the column count and, in a numbered menu, of a page.
MenuLayout LayOutMenu(const RECT& client, int dpi, MenuStyle style, int items, int first);

// How many items a whole page holds.
int CellsPerPage(const RECT& client, int dpi, MenuStyle style);

// The first item to show so that `selected` is on the page; changes `first` as little as possible,
// by whole pages in a numbered menu.
int ScrollToShow(MenuStyle style, int selected, int first, int columns, int cellsPerPage);

// The first item of a grid's or list's last page, which has no empty rows.
int LastFirst(int items, int columns, int cellsPerPage);

// Where the page stands that a tap on the scroll bar brings: one page on, or back.
int ScrollByPage(bool down, int items, int first, int columns, int cellsPerPage);

// The item that a key moves the selection to (VK_LEFT ..., VK_PRIOR, VK_NEXT, VK_HOME, VK_END);
// `selected` itself for a key that leads nowhere.
//
// Grids and lists stop at their ends. A numbered menu has none: the selection goes from the end of
// a row to the beginning of the next one, from the last item to the first, and from the bottom of a
// column to its top, so that every item is a few presses away in either direction.
int NextInMenu(MenuStyle style, WPARAM key, int selected, int items, int columns, int cellsPerPage);

// The cell that a digit key stands for in a numbered menu, 0 to 8; -1 for any other key.
int CellOfDigit(WPARAM key);
