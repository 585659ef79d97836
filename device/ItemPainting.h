// How the items of the shell's pages look: cells of grids, lines of lists, entries with a note, and
// what stands around them.
#pragma once

#include "platform/Win.h"

#include <string>

#include "device/ShellEntry.h"
#include "platform/Handles.h"

// Logical pixels.
constexpr int kPageMargin = 8;
constexpr int kIconSize = 32;
constexpr int kSmallIconSize = 16;

// What is special about an item in a cell.
struct ItemMarks
{
    bool IsSelected = false;
    bool IsPinned = false;
    // The digit on the cell, 0 for none.
    int Digit = 0;
};

class CItemPainter
{
public:
    CItemPainter();

    HFONT Bold() const { return m_bold.get(); }
    HFONT Normal() const { return m_normal.get(); }
    HFONT Small() const { return m_small.get(); }

    static void PaintWallpaper(HDC dc, const RECT& client);
    // The bar behind what is selected.
    static void PaintSelection(HDC dc, RECT area);
    // An arrow that points to the right, at the right end of `area`, whose end it moves before it.
    static void PaintArrow(HDC dc, RECT& area, COLORREF colour);
    // A page's title, with a line below it; `aside` stands at its right end.
    void PaintTitle(HDC dc, RECT area, const std::wstring& title, const std::wstring& aside) const;
    // The heading of a part of a page.
    void PaintHeading(HDC dc, RECT area, const std::wstring& text) const;
    static void PaintScrollBar(HDC dc, const RECT& bar, RECT thumb);

    // An entry as a cell of a grid, or as a line of a list.
    void PaintCell(HDC dc, const ShellEntry& entry, const RECT& area, const ItemMarks& marks) const;
    void PaintLine(HDC dc, const ShellEntry& entry, const RECT& area, bool isSelected) const;
    // A large entry: icon, title, and a note below the title unless it is empty.
    void PaintRow(HDC dc, int icon, const std::wstring& title, const std::wstring& note,
                  const RECT& area, bool isSelected) const;

private:
    UniqueFont m_bold;
    UniqueFont m_normal;
    UniqueFont m_small;
};
