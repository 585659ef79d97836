#include "dialogs/city/CityListLayout.h"

#include <cstdint>

CityColumnWidths FitCityColumns(const CityListSize& size, int onePixel, int twoPixels)
{
    int width = size.Width - twoPixels;
    const int64_t rows = static_cast<int64_t>(size.RowHeight) * size.RowCount;
    if (size.RowCount > 0 && rows > size.ClientHeight)
        width -= size.ScrollBarWidth;
    const int name = 2 * width / 3;
    return {name, width - onePixel - name};
}
