#include "device/NowPainting.h"

#include "device/ColourScheme.h"
#include "device/LauncherIcons.h"
#include "device/NowLayout.h"
#include "device/Painting.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kMargin = 8;
constexpr int kRowIcon = 32;
constexpr int kCardHead = 20;
constexpr int kCardIcon = 16;
constexpr int kLineHeight = 18;

// The drawing of one screen.
class CNowPainter
{
public:
    CNowPainter(HDC dc, int dpi)
        : m_dc(dc), m_dpi(dpi), m_bold(painting::MakeFont(Scaled(13), true)),
          m_normal(painting::MakeFont(Scaled(12), false))
    {
    }

    // One panel below the other, with a line between them.
    void PaintRows(const RECT& area, const NowLayout& layout, const std::vector<NowPanel>& panels)
    {
        painting::FillGradient(m_dc, area, colours::kPaper, colours::kFace);
        for (size_t i = 0; i < layout.Panels.size(); ++i)
            PaintRow(layout.Panels[i], panels[i + static_cast<size_t>(layout.First)]);
        PaintScrollBar(layout);
    }

    // Cards with a coloured head.
    void PaintCards(const RECT& area, const NowLayout& layout, const std::vector<NowPanel>& panels)
    {
        painting::FillGradient(m_dc, area, painting::Mix(colours::kMist, colours::kTeal, 60),
                               painting::Mix(colours::kTeal, colours::kDeepTeal, 120));
        for (size_t i = 0; i < layout.Panels.size(); ++i)
            PaintCard(layout.Panels[i], panels[i + static_cast<size_t>(layout.First)]);
        PaintScrollBar(layout);
    }

private:
    int Scaled(int length) const { return ScaleToDpi(length, m_dpi); }

    void PaintScrollBar(const NowLayout& layout)
    {
        if (IsRectEmpty(&layout.ScrollBar))
            return;
        painting::Fill(m_dc, layout.ScrollBar, colours::kMist);
        painting::Fill(m_dc, layout.Thumb, colours::kTeal);
    }

    void PaintRow(const RECT& row, const NowPanel& panel)
    {
        const RECT icon = {row.left, row.top, row.left + Scaled(kRowIcon + 2 * kMargin),
                           row.bottom};
        icons::Draw(m_dc, panel.Icon, icon, Scaled(kRowIcon));
        const int top = (row.top + row.bottom) / 2 - Scaled(kLineHeight);
        const int right = row.right - Scaled(kMargin);
        painting::Text(m_dc, m_bold.get(), panel.Title,
                       {icon.right, top, right, top + Scaled(kLineHeight)}, colours::kTeal,
                       DT_LEFT | DT_VCENTER);
        painting::Text(
            m_dc, m_normal.get(), panel.Lines.front(),
            {icon.right, top + Scaled(kLineHeight), right, top + Scaled(2 * kLineHeight)},
            colours::kInk, DT_LEFT | DT_VCENTER);
        const RECT line = {row.left + Scaled(kMargin), row.bottom - Scaled(1), right, row.bottom};
        painting::Fill(m_dc, line, colours::kMist);
    }

    void PaintCard(const RECT& card, const NowPanel& panel)
    {
        painting::Fill(m_dc, card, colours::kPaper);
        const RECT head = {card.left, card.top, card.right, card.top + Scaled(kCardHead)};
        painting::FillGradient(m_dc, head, colours::kTeal, colours::kDeepTeal);
        const RECT icon = {head.left, head.top, head.left + Scaled(kCardIcon + 8), head.bottom};
        icons::Draw(m_dc, panel.Icon, icon, Scaled(kCardIcon));
        const int right = card.right - Scaled(kMargin);
        painting::Text(m_dc, m_bold.get(), panel.Title, {icon.right, head.top, right, head.bottom},
                       colours::kWhite, DT_LEFT | DT_VCENTER);
        RECT line = {icon.right, head.bottom + Scaled(3), right,
                     head.bottom + Scaled(3 + kLineHeight)};
        for (const std::wstring& text : panel.Lines)
        {
            painting::Text(m_dc, m_normal.get(), text, line, colours::kInk, DT_LEFT | DT_VCENTER);
            OffsetRect(&line, 0, Scaled(kLineHeight));
        }
    }

    HDC m_dc;
    int m_dpi;
    UniqueFont m_bold;
    UniqueFont m_normal;
};

} // namespace

void PaintNow(HDC dc, const RECT& area, int dpi, const NowContents& contents, int first)
{
    CNowPainter painter(dc, dpi);
    const NowLayout layout =
        LayOutNow(area, dpi, contents.Type, static_cast<int>(contents.Panels.size()), first);
    if (contents.Type == LayoutType::Professional)
        painter.PaintCards(area, layout, contents.Panels);
    else
        painter.PaintRows(area, layout, contents.Panels);
}
