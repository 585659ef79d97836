#include "platform/aygshell/SoftKeyPainting.h"

#include <algorithm>

#include "platform/aygshell/MenuBar.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Painting.h"
#include "platform/aygshell/SoftKeys.h"

namespace shell
{

namespace
{

// Space that the divider leaves above and below, and the text at its sides, in logical pixels.
constexpr int kDividerInset = 6;
constexpr int kTextMargin = 4;

// The part of a key that the input-panel button does not cover.
RECT TextRect(HWND toolbar, RECT key)
{
    const HWND button = GetDlgItem(GetParent(toolbar), kSipButtonId);
    RECT covered{};
    if (button != nullptr && GetWindowRect(button, &covered))
    {
        MapWindowPoints(nullptr, toolbar, reinterpret_cast<POINT*>(&covered), 2);
        if (key.left < covered.left)
            key.right = std::min(key.right, covered.left);
        else if (key.right > covered.right)
            key.left = std::max(key.left, covered.right);
    }
    InflateRect(&key, -Scaled(kTextMargin), 0);
    return key;
}

COLORREF TextColour(BYTE state)
{
    if ((state & TBSTATE_ENABLED) == 0)
        return GetSysColor(COLOR_GRAYTEXT);
    return GetSysColor((state & TBSTATE_PRESSED) != 0 ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT);
}

void PaintKey(HWND toolbar, HDC dc, int index)
{
    wchar_t text[256] = {};
    TBBUTTONINFOW key{};
    key.cbSize = sizeof key;
    key.dwMask = TBIF_BYINDEX | TBIF_STATE | TBIF_TEXT;
    key.pszText = text;
    key.cchText = ARRAYSIZE(text);
    if (SendMessageW(toolbar, TB_GETBUTTONINFOW, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&key)) < 0 ||
        (key.fsState & TBSTATE_HIDDEN) != 0)
        return;

    const RECT place = SoftKeyRect(toolbar, index);
    if ((key.fsState & TBSTATE_PRESSED) != 0)
        FillPlain(dc, place, GetSysColor(COLOR_HIGHLIGHT));
    RECT line = TextRect(toolbar, place);
    SetTextColor(dc, TextColour(key.fsState));
    DrawTextW(dc, text, -1, &line, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
}

void PaintDivider(HWND toolbar, HDC dc, int index)
{
    RECT line = SoftKeyRect(toolbar, index);
    InflateRect(&line, 0, -Scaled(kDividerInset));
    line.right = line.left + Scaled(1);
    FillPlain(dc, line, GetSysColor(COLOR_BTNSHADOW));
}

void PaintAll(HWND toolbar, HDC dc, const RECT& area, COLORREF background)
{
    PaintBarSurface(dc, area, background);
    const CSelectObject font(dc,
                             reinterpret_cast<HGDIOBJ>(SendMessageW(toolbar, WM_GETFONT, 0, 0)));
    SetBkMode(dc, TRANSPARENT);
    const int count = static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
    for (int index = 0; index < count; ++index)
        PaintKey(toolbar, dc, index);
    for (int index = 1; index < count; ++index)
        PaintDivider(toolbar, dc, index);
}

} // namespace

void PaintSoftKeys(HWND toolbar, COLORREF background)
{
    PaintBuffered(toolbar, [toolbar, background](HDC dc, const RECT& area)
                  { PaintAll(toolbar, dc, area, background); });
}

} // namespace shell
