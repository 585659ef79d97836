#include "tests/gallery/support/TextMeasure.h"

#include "platform/Handles.h"
#include "tests/support/Pixels.h"

namespace
{

SIZE Measure(HFONT font, const std::wstring& text, int width, UINT format)
{
    const UniqueScreenDc dc(GetDC(nullptr));
    const CSelectObject selected(dc.get(), font);
    RECT area = {0, 0, width, 0};
    DrawTextW(dc.get(), text.c_str(), static_cast<int>(text.size()), &area, format | DT_CALCRECT);
    return {area.right, area.bottom};
}

HFONT FontOf(HWND control)
{
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    return font ? font : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

UINT PrefixFormat(bool prefix)
{
    return prefix ? 0 : DT_NOPREFIX;
}

} // namespace

SIZE LineSize(HWND control, const std::wstring& text, bool prefix)
{
    return Measure(FontOf(control), text, 0, DT_SINGLELINE | PrefixFormat(prefix));
}

SIZE ParagraphSize(HWND control, const std::wstring& text, int width, bool prefix)
{
    return Measure(FontOf(control), text, width,
                   DT_WORDBREAK | DT_EXPANDTABS | PrefixFormat(prefix));
}

SIZE TitleSize(const std::wstring& text)
{
    LOGFONTW font = {};
    font.lfHeight = Px(13);
    font.lfWeight = FW_BOLD;
    lstrcpyW(font.lfFaceName, L"Tahoma");
    const UniqueFont bold(CreateFontIndirectW(&font));
    return Measure(bold.get(), text, 0, DT_SINGLELINE | DT_NOPREFIX);
}

SIZE MenuTextSize(const std::wstring& text)
{
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    const UniqueFont font(CreateFontIndirectW(&metrics.lfMenuFont));
    return Measure(font.get(), text, 0, DT_SINGLELINE);
}

// The box is 13 pixels wide at 96 dpi, the gap half a digit.
int CheckGlyphWidth(HWND control)
{
    return Px(13) + LineSize(control, L"0").cx / 2;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    CharLowerW(name);
    return name;
}

std::string ControlName(HWND control)
{
    const std::wstring name = ClassOf(control);
    return std::string(name.begin(), name.end()) + " " + std::to_string(GetDlgCtrlID(control));
}

SIZE SizeOf(const RECT& rect)
{
    return {rect.right - rect.left, rect.bottom - rect.top};
}

RECT ClientOf(HWND window)
{
    RECT client = {};
    GetClientRect(window, &client);
    return client;
}
