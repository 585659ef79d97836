// Sizes of the picker's list, computed from plain numbers.
#pragma once

// What the columns must fit into; all in device pixels.
struct CityListSize
{
    int Width;        // of the list's window
    int ClientHeight; // of the list
    int RowHeight;
    int RowCount;
    int ScrollBarWidth;
};

struct CityColumnWidths
{
    int Name;
    int Area;
};

// Two thirds for the city's name, the rest for its area, beside a scroll bar when the rows need
// one. `onePixel` and `twoPixels` are that many logical pixels.
CityColumnWidths FitCityColumns(const CityListSize& size, int onePixel, int twoPixels);
