#include "ui/Scale.h"

#include "frame/Resolution.h"

#include <algorithm>
#include <cstdint>
#include <limits>

int ScaleToDpi(int value, int dpi)
{
    const int64_t magnitude = value < 0 ? -static_cast<int64_t>(value) : value;
    const int64_t scaled =
        std::min<int64_t>((magnitude * dpi + 48) / 96, std::numeric_limits<int>::max());
    return static_cast<int>(value < 0 ? -scaled : scaled);
}

int ScaleX(int value)
{
    return ScaleToDpi(value, GetScreenResolution().dpiX);
}

int ScaleY(int value)
{
    return ScaleToDpi(value, GetScreenResolution().dpiY);
}
