#include "platform/aygshell/Painting.h"

#include "platform/aygshell/Metrics.h"

namespace shell
{

void FillPlain(HDC dc, const RECT& area, COLORREF colour)
{
    const COLORREF before = SetBkColor(dc, colour);
    ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
    SetBkColor(dc, before);
}

void PaintBarSurface(HDC dc, const RECT& area, COLORREF background)
{
    FillPlain(dc, area, background == CLR_DEFAULT ? GetSysColor(COLOR_BTNFACE) : background);
    RECT edge = area;
    edge.bottom = edge.top + Scaled(1);
    FillPlain(dc, edge, GetSysColor(COLOR_BTNSHADOW));
}

} // namespace shell
