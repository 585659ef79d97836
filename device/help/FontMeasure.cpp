#include "device/help/FontMeasure.h"

#include <algorithm>
#include <vector>

#include "device/Painting.h"
#include "ui/Scale.h"

namespace help
{
namespace
{

struct Look
{
    // In logical pixels.
    int Height;
    bool Bold;
};

// In the order of TextStyle.
constexpr Look kLooks[kTextStyles] = {{13, false}, {13, true}, {14, true}, {15, true}};

// Between the lines of a text, in logical pixels.
constexpr int kLeading = 2;

} // namespace

CFontMeasure::CFontMeasure() : m_dc(CreateCompatibleDC(nullptr))
{
    for (size_t i = 0; i < kTextStyles; ++i)
    {
        Face& face = m_faces[i];
        face.Font = painting::MakeFont(ScaleY(kLooks[i].Height), kLooks[i].Bold);
        const CSelectObject selected(m_dc.get(), face.Font.get());
        TEXTMETRICW metrics = {};
        GetTextMetricsW(m_dc.get(), &metrics);
        face.Height = static_cast<int>(metrics.tmHeight) + ScaleY(kLeading);
    }
}

int CFontMeasure::Width(TextStyle style, Char16 unit)
{
    Face& face = m_faces[Index(style)];
    std::unique_ptr<WidthPage>& page = face.Pages[unit / kPageSize];
    if (!page)
    {
        page = std::make_unique<WidthPage>();
        page->fill(-1);
    }
    int& width = (*page)[unit % kPageSize];
    if (width < 0)
        width = std::max(0, Measure(face, unit));
    return width;
}

// How far the pen moves for the character as it is drawn. What the system tells of a text's extent
// is that of the outlines on some systems, also where small sizes are drawn from narrower bitmaps.
int CFontMeasure::Measure(const Face& face, Char16 unit) const
{
    const CSelectObject selected(m_dc.get(), face.Font.get());
    const MAT2 unchanged = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    GLYPHMETRICS metrics = {};
    const DWORD size =
        GetGlyphOutlineW(m_dc.get(), unit, GGO_BITMAP, &metrics, 0, nullptr, &unchanged);
    if (size != GDI_ERROR)
        return metrics.gmCellIncX;
    SIZE extent = {};
    GetTextExtentPoint32W(m_dc.get(), &unit, 1, &extent);
    return extent.cx;
}

void CFontMeasure::Draw(HDC dc, TextStyle style, int x, int y, StringView16 text, COLORREF colour)
{
    std::vector<int> widths;
    widths.reserve(text.size());
    for (const Char16 unit : text)
        widths.push_back(Width(style, unit));
    const CSelectObject selected(dc, Font(style));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colour);
    ExtTextOutW(dc, x, y, 0, nullptr, text.data(), static_cast<UINT>(text.size()), widths.data());
}

} // namespace help
