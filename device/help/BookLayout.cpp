#include "device/help/BookLayout.h"

#include <algorithm>

namespace help
{
namespace
{

TextStyle StyleOf(BlockKind kind, bool isBold)
{
    switch (kind)
    {
    case BlockKind::Heading1:
        return TextStyle::LargeHeading;
    case BlockKind::Heading2:
        return TextStyle::Heading;
    case BlockKind::Heading3:
        return TextStyle::Bold;
    default:
        return isBold ? TextStyle::Bold : TextStyle::Normal;
    }
}

bool IsHighSurrogate(Char16 unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

// A part of a word in one look, as a range of a run's text.
struct Fragment
{
    size_t Run;
    size_t Begin;
    size_t End;
    int Width;
};

// Fills the lines of one block.
class CBlockLayout
{
public:
    CBlockLayout(const Block& block, int left, int right, BookLayout& layout, ITextMeasure& measure)
        : m_block(block), m_left(left), m_right(std::max(right, left + 1)), m_layout(layout),
          m_measure(measure), m_height(measure.Height(StyleOf(block.Kind, false)))
    {
    }

    void Run();

private:
    void TakeRun(size_t run);
    void EndWord();
    void PlaceWord();
    void PlaceBroken(const Fragment& fragment);
    void Place(const Fragment& fragment);
    void BeginLine();
    Line& CurrentLine() { return m_layout.Lines.back(); }
    int WidthOf(size_t run, size_t at)
    {
        const help::Run& text = m_block.Runs[run];
        return m_measure.Width(StyleOf(m_block.Kind, text.Bold), text.Text[at]);
    }

    const Block& m_block;
    const int m_left;
    const int m_right;
    BookLayout& m_layout;
    ITextMeasure& m_measure;
    const int m_height;
    std::vector<Fragment> m_word;
    int m_wordWidth = 0;
    // The blank in front of the word, and where the next word may begin.
    int m_space = 0;
    int m_x = 0;
    // The run of the line's last piece and where its text ends.
    size_t m_lastRun = SIZE_MAX;
};

void CBlockLayout::BeginLine()
{
    Line line;
    line.Top = m_layout.Height;
    line.Height = m_height;
    line.FirstPiece = m_layout.Pieces.size();
    m_layout.Lines.push_back(line);
    m_layout.Height += m_height;
    m_x = m_left;
    m_space = 0;
    m_lastRun = SIZE_MAX;
}

void CBlockLayout::Run()
{
    BeginLine();
    for (size_t run = 0; run < m_block.Runs.size(); ++run)
        TakeRun(run);
    EndWord();
}

void CBlockLayout::TakeRun(size_t run)
{
    const String16& text = m_block.Runs[run].Text;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] == '\n')
        {
            EndWord();
            BeginLine();
        }
        else if (text[i] == ' ')
        {
            EndWord();
            m_space = WidthOf(run, i);
        }
        else
        {
            const int width = WidthOf(run, i);
            if (m_word.empty() || m_word.back().Run != run)
                m_word.push_back({run, i, i, 0});
            m_word.back().End = i + 1;
            m_word.back().Width += width;
            m_wordWidth += width;
        }
    }
}

void CBlockLayout::EndWord()
{
    if (m_word.empty())
        return;
    const bool isFirst = m_x == m_left;
    if (!isFirst && m_x + m_space + m_wordWidth > m_right)
        BeginLine();
    PlaceWord();
    m_word.clear();
    m_wordWidth = 0;
    m_space = 0;
}

void CBlockLayout::PlaceWord()
{
    const bool fits = m_x + m_space + m_wordWidth <= m_right;
    for (const Fragment& fragment : m_word)
    {
        if (fits)
            Place(fragment);
        else
            PlaceBroken(fragment);
        m_space = 0;
    }
}

// A word that is wider than the line is broken where the line ends.
void CBlockLayout::PlaceBroken(const Fragment& fragment)
{
    const String16& text = m_block.Runs[fragment.Run].Text;
    Fragment part = {fragment.Run, fragment.Begin, fragment.Begin, 0};
    for (size_t i = fragment.Begin; i < fragment.End;)
    {
        const bool isPair = IsHighSurrogate(text[i]) && i + 1 < fragment.End;
        const int width = WidthOf(fragment.Run, i) + (isPair ? WidthOf(fragment.Run, i + 1) : 0);
        const bool isEmpty = part.Begin == part.End && m_x == m_left;
        if (!isEmpty && m_x + part.Width + width > m_right)
        {
            Place(part);
            BeginLine();
            part = {fragment.Run, i, i, 0};
        }
        i += isPair ? 2 : 1;
        part.End = i;
        part.Width += width;
    }
    Place(part);
}

void CBlockLayout::Place(const Fragment& fragment)
{
    if (fragment.Begin == fragment.End)
        return;
    const help::Run& run = m_block.Runs[fragment.Run];
    if (m_lastRun == fragment.Run)
    {
        // The same look goes on: one piece with the blank between.
        Piece& last = m_layout.Pieces.back();
        const Char16* const begin = last.Text.data();
        last.Text =
            StringView16(begin, static_cast<size_t>(run.Text.data() + fragment.End - begin));
        last.Width += m_space + fragment.Width;
        m_x += m_space + fragment.Width;
        return;
    }
    m_x += m_space;
    m_layout.Pieces.push_back(
        {m_x, fragment.Width, StyleOf(m_block.Kind, run.Bold), run.Link,
         StringView16(run.Text).substr(fragment.Begin, fragment.End - fragment.Begin)});
    ++CurrentLine().PieceCount;
    m_x += fragment.Width;
    m_lastRun = fragment.Run;
}

int WidthOfMark(const String16& mark, ITextMeasure& measure)
{
    int width = 0;
    for (const Char16 unit : mark)
        width += measure.Width(TextStyle::Normal, unit);
    return width;
}

// Puts the bullet or number into the room left of the block's first line, right-aligned.
void PlaceMark(const Block& block, size_t firstLine, int left, BookLayout& layout,
               ITextMeasure& measure)
{
    const int width = WidthOfMark(block.Mark, measure);
    const int blank = measure.Width(TextStyle::Normal, ' ');
    Line& line = layout.Lines[firstLine];
    const auto place = layout.Pieces.begin() + static_cast<std::ptrdiff_t>(line.FirstPiece);
    layout.Pieces.insert(place, {left - width - blank, width, TextStyle::Normal, -1, block.Mark});
    ++line.PieceCount;
    for (size_t i = firstLine + 1; i < layout.Lines.size(); ++i)
        ++layout.Lines[i].FirstPiece;
}

int GapAbove(const Block& block, const Block* before, const LayoutMetrics& metrics)
{
    if (!before)
        return 0;
    const bool isHeading = block.Kind == BlockKind::Heading1 || block.Kind == BlockKind::Heading2 ||
                           block.Kind == BlockKind::Heading3;
    // Items of a list stand close together.
    const bool isItem = !block.Mark.empty() && !before->Mark.empty();
    return isHeading ? metrics.HeadingGap : isItem ? metrics.Gap / 2 : metrics.Gap;
}

void NoteLinks(BookLayout& layout)
{
    for (const Line& line : layout.Lines)
        for (size_t i = 0; i < line.PieceCount; ++i)
        {
            const int link = layout.Pieces[line.FirstPiece + i].Link;
            if (link < 0)
                continue;
            if (layout.Links.empty() || layout.Links.back().Link != link)
                layout.Links.push_back({link, line.Top, 0});
            layout.Links.back().Bottom = line.Top + line.Height;
        }
}

void AddRule(const LayoutMetrics& metrics, BookLayout& layout)
{
    Line line;
    line.Top = layout.Height;
    line.Height = std::max(1, metrics.Gap);
    line.FirstPiece = layout.Pieces.size();
    line.IsRule = true;
    layout.Lines.push_back(line);
    layout.Height += line.Height;
}

} // namespace

BookLayout LayOut(const Book& book, int width, const LayoutMetrics& metrics, ITextMeasure& measure)
{
    BookLayout layout;
    layout.Height = metrics.Margin;
    const Block* before = nullptr;
    for (const Block& block : book.Blocks)
    {
        layout.Height += GapAbove(block, before, metrics);
        layout.BlockTops.push_back(layout.Height);
        before = &block;
        if (block.Kind == BlockKind::Rule)
        {
            AddRule(metrics, layout);
            continue;
        }
        if (block.Runs.empty())
            continue;
        const int left = metrics.Margin + block.Indent * metrics.Indent;
        const size_t firstLine = layout.Lines.size();
        CBlockLayout(block, left, width - metrics.Margin, layout, measure).Run();
        if (!block.Mark.empty())
            PlaceMark(block, firstLine, left, layout, measure);
    }
    layout.Height += metrics.Margin;
    NoteLinks(layout);
    return layout;
}

size_t LineAt(const BookLayout& layout, int y)
{
    const auto below = [](const Line& line, int wanted)
    { return line.Top + line.Height <= wanted; };
    const auto found = std::lower_bound(layout.Lines.begin(), layout.Lines.end(), y, below);
    return static_cast<size_t>(found - layout.Lines.begin());
}

int LinkAt(const BookLayout& layout, int x, int y)
{
    const size_t index = LineAt(layout, y);
    if (index == layout.Lines.size() || y < layout.Lines[index].Top)
        return -1;
    const Line& line = layout.Lines[index];
    for (size_t i = 0; i < line.PieceCount; ++i)
    {
        const Piece& piece = layout.Pieces[line.FirstPiece + i];
        if (x >= piece.Left && x < piece.Left + piece.Width)
            return piece.Link;
    }
    return -1;
}

const LinkSpan* SpanOf(const BookLayout& layout, int link)
{
    for (const LinkSpan& span : layout.Links)
        if (span.Link == link)
            return &span;
    return nullptr;
}

int NextLink(const BookLayout& layout, int current, bool forward, int top, int bottom)
{
    const auto fits = [&](const LinkSpan& span)
    {
        const bool isBeyond = current < 0 || (forward ? span.Link > current : span.Link < current);
        return isBeyond && span.Bottom > top && span.Top < bottom;
    };
    if (forward)
    {
        const auto found = std::find_if(layout.Links.begin(), layout.Links.end(), fits);
        return found == layout.Links.end() ? -1 : found->Link;
    }
    const auto found = std::find_if(layout.Links.rbegin(), layout.Links.rend(), fits);
    return found == layout.Links.rend() ? -1 : found->Link;
}

size_t BlockAt(const BookLayout& layout, int y)
{
    const auto behind = std::upper_bound(layout.BlockTops.begin(), layout.BlockTops.end(), y);
    return behind == layout.BlockTops.begin()
               ? 0
               : static_cast<size_t>(behind - layout.BlockTops.begin()) - 1;
}

} // namespace help
