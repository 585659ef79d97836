#include "ui/TitleBand.h"

#include "platform/Handles.h"
#include "ui/DialogFonts.h"
#include "ui/Paint.h"
#include "ui/Scale.h"

#include <algorithm>
#include <cstdint>

namespace
{

constexpr int kBandHeight = 23;
constexpr int kLineThickness = 1;
constexpr int kTitleMargin = 8;
constexpr int kTitleSize = 256;
// Farther down than any screen, with room left for the line.
constexpr int kFarthestEdge = INT32_MAX / 2;

// Always bold, whatever the language wants of the other fonts.
void DrawTitle(HDC dc, const wchar_t* title, int width, int height)
{
    const UniqueFont font(
        CreateFontExactly(kDialogFontFace, ScaleY(kDialogFontHeight), FW_BOLD, ANSI_CHARSET));
    const CSelectObject selected(dc, font.get());
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    RECT rect = {ScaleX(kTitleMargin), 0, width, height};
    DrawTextW(dc, title, -1, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// Off-screen first, so that nothing flickers.
void DrawBand(HDC target, const wchar_t* title, int y)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = TitleBandHeight();
    const int total = height + TitleLineThickness();
    const UniqueMemoryDc memory(CreateCompatibleDC(target));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(target, width, total));
    if (!memory || !bitmap)
        return;
    const CSelectObject selected(memory.get(), bitmap.get());

    const RECT all = {0, 0, width, total};
    FillRect(memory.get(), &all, GetSysColorBrush(COLOR_WINDOW));
    DrawTitle(memory.get(), title, width, height);
    const RECT line = {0, height, width, total};
    FillRect(memory.get(), &line, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    BitBlt(target, 0, y, width, total, memory.get(), 0, 0, SRCCOPY);
}

} // namespace

int TitleBandHeight()
{
    return ScaleY(kBandHeight);
}

int TitleLineThickness()
{
    return ScaleY(kLineThickness);
}

int VerticalScrollPosition(HWND dialog)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_POS;
    return GetScrollInfo(dialog, SB_VERT, &info) ? info.nPos : 0;
}

void PaintTitleBand(HWND dialog)
{
    const int position = VerticalScrollPosition(dialog);
    const CPaint paint(dialog);
    wchar_t title[kTitleSize] = {};
    GetWindowTextW(dialog, title, kTitleSize);
    if (static_cast<int64_t>(TitleBandHeight()) - position > 0)
        DrawBand(paint.dc(), title, -std::max(position, -kFarthestEdge));
}

std::optional<int> ScrolledBandBottom(int position, int current, int height)
{
    if (position == current)
        return std::nullopt;
    const int64_t bottom = static_cast<int64_t>(height) - std::min(position, current);
    if (bottom < 0)
        return std::nullopt;
    return static_cast<int>(std::min<int64_t>(bottom, kFarthestEdge));
}
