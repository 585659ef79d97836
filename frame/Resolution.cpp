#include "frame/Resolution.h"

#include "platform/Handles.h"

namespace
{

constexpr int kUsualDpi = 96;

ScreenResolution g_resolution;

int SensibleDpi(int dpi)
{
    return dpi > 0 ? dpi : kUsualDpi;
}

} // namespace

void ReadScreenResolution()
{
    if (g_resolution.dpiX != 0)
        return;
    const UniqueScreenDc screen(GetDC(nullptr));
    g_resolution.dpiX = SensibleDpi(GetDeviceCaps(screen.get(), LOGPIXELSX));
    g_resolution.dpiY = SensibleDpi(GetDeviceCaps(screen.get(), LOGPIXELSY));
}

const ScreenResolution& GetScreenResolution()
{
    ReadScreenResolution();
    return g_resolution;
}
