#include "platform/aygshell/Metrics.h"

#include <algorithm>

#include "platform/Handles.h"

namespace shell
{

namespace
{

// Heights in logical pixels, as on the handheld.
constexpr int kBarHeight = 26;
constexpr int kPanelHeight = 80;
constexpr int kFontHeight = 13;

int ScreenDpi()
{
    const UniqueScreenDc dc(GetDC(nullptr));
    const int dpi = dc ? GetDeviceCaps(dc.get(), LOGPIXELSY) : 0;
    return dpi > 0 ? dpi : 96;
}

} // namespace

int Scaled(int logical)
{
    return (logical * ScreenDpi() + 48) / 96;
}

RECT AreaOnScreen(const RECT& area, int width, int height)
{
    if (area.right <= width && area.bottom <= height)
        return area;
    // Turned, the former height is the width; without that there is no margin to be kept.
    const LONG right = width - std::max(0L, height - area.right);
    const LONG bottom = height - std::max(0L, width - area.bottom);
    return {area.left, area.top, right, bottom};
}

RECT WorkArea()
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    RECT area{};
    if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0))
        SetRect(&area, 0, 0, width, height);
    return AreaOnScreen(area, width, height);
}

RECT BarRect()
{
    RECT bar = WorkArea();
    bar.top = std::max(bar.top, bar.bottom - static_cast<LONG>(Scaled(kBarHeight)));
    return bar;
}

RECT DialogRect()
{
    RECT dialog = WorkArea();
    dialog.bottom = BarRect().top;
    return dialog;
}

RECT PanelRect()
{
    RECT panel = DialogRect();
    panel.top = std::max(panel.top, panel.bottom - static_cast<LONG>(Scaled(kPanelHeight)));
    return panel;
}

HFONT CreateShellFont(int weight)
{
    LOGFONTW font{};
    font.lfHeight = Scaled(kFontHeight);
    font.lfWeight = weight;
    lstrcpynW(font.lfFaceName, L"Tahoma", LF_FACESIZE);
    return CreateFontIndirectW(&font);
}

} // namespace shell
