#include "device/NowPainting.h"

#include <algorithm>

#include "device/ColourScheme.h"
#include "device/LauncherIcons.h"
#include "device/Painting.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kMargin = 8;
constexpr int kRowHeight = 54;
constexpr int kSmallestRow = 40;
constexpr int kRowIcon = 32;
constexpr int kCardHeight = 62;
constexpr int kCardGap = 3;
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

    // One panel below the other, with a line between them; closer together when there are many.
    void PaintRows(const RECT& area, const std::vector<NowPanel>& panels)
    {
        painting::FillGradient(m_dc, area, colours::kPaper, colours::kFace);
        const int count = std::max(1, static_cast<int>(panels.size()));
        const int height = std::max(
            Scaled(kSmallestRow),
            std::min(Scaled(kRowHeight), static_cast<int>(area.bottom - area.top) / count));
        RECT row = {area.left, area.top, area.right, area.top + height};
        for (const NowPanel& panel : panels)
        {
            if (row.bottom > area.bottom)
                return;
            PaintRow(row, panel);
            OffsetRect(&row, 0, height);
        }
    }

    // Cards with a coloured head; two beside each other on a wide screen.
    void PaintCards(const RECT& area, const std::vector<NowPanel>& panels)
    {
        painting::FillGradient(m_dc, area, painting::Mix(colours::kMist, colours::kTeal, 60),
                               painting::Mix(colours::kTeal, colours::kDeepTeal, 120));
        const int columns = area.right - area.left > area.bottom - area.top ? 2 : 1;
        const int width = (area.right - area.left - Scaled(kCardGap)) / columns;
        for (int i = 0; i < static_cast<int>(panels.size()); ++i)
        {
            const int left = area.left + Scaled(kCardGap) + i % columns * width;
            const int top =
                area.top + Scaled(kCardGap) + i / columns * Scaled(kCardHeight + kCardGap);
            const RECT card = {left, top, left + width - Scaled(kCardGap),
                               top + Scaled(kCardHeight)};
            if (card.bottom > area.bottom)
                return;
            PaintCard(card, panels[static_cast<size_t>(i)]);
        }
    }

private:
    int Scaled(int length) const { return ScaleToDpi(length, m_dpi); }

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

void PaintNow(HDC dc, const RECT& area, int dpi, const NowContents& contents)
{
    CNowPainter painter(dc, dpi);
    if (contents.Type == LayoutType::Professional)
        painter.PaintCards(area, contents.Panels);
    else
        painter.PaintRows(area, contents.Panels);
}
