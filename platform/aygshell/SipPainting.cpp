#include "platform/aygshell/SipPainting.h"

#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Painting.h"
#include "platform/aygshell/SipKeys.h"

namespace shell
{

namespace
{

struct Face
{
    wchar_t Text[6];
};

Face FaceOf(const SipKey& key, bool shifted)
{
    switch (key.Action)
    {
    case SipAction::Backspace:
        // The handheld's face has no arrow.
        return {L"\x00AB"};
    case SipAction::Enter:
        return {L"Enter"};
    case SipAction::Shift:
        return {L"Shift"};
    case SipAction::Character:
        break;
    }
    return {{shifted ? key.Shifted : key.Plain, 0}};
}

void PaintKey(HDC dc, const SipKey& key, const RECT& place, bool pressed, bool shifted)
{
    const bool lit = pressed || (key.Action == SipAction::Shift && shifted);
    FillPlain(dc, place, GetSysColor(lit ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    SetTextColor(dc, GetSysColor(lit ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    const Face face = FaceOf(key, shifted);
    RECT line = place;
    DrawTextW(dc, face.Text, -1, &line, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_NOPREFIX);
}

// Keys are plain tiles; the gaps between them show the surface.
void PaintKeys(HDC dc, const RECT& area, SipLook look)
{
    PaintBarSurface(dc, area, CLR_DEFAULT);
    const UniqueFont font(CreateShellFont(FW_NORMAL));
    const CSelectObject selected(dc, font.get());
    SetBkMode(dc, TRANSPARENT);
    const int gap = Scaled(1);
    for (int index = 0; index < SipKeyCount(); ++index)
    {
        const SipKey& key = SipKeyAt(index);
        const SipKeyBox box = SipKeyPlace(key, area.right, area.bottom);
        const RECT place{box.Left, box.Top + gap, box.Right - gap, box.Bottom};
        PaintKey(dc, key, place, index == look.Pressed, look.Shifted);
    }
}

} // namespace

void PaintSipPanel(HWND panel, SipLook look)
{
    PaintBuffered(panel, [look](HDC dc, const RECT& area) { PaintKeys(dc, area, look); });
}

} // namespace shell
