// Where each word of a help page stands at a given width. Pure: no windows.h.
#pragma once

#include <vector>

#include "device/help/Book.h"

namespace help
{

enum class TextStyle
{
    Normal,
    Bold,
    Heading,
    LargeHeading
};
constexpr int kTextStyles = 4;

// Measures text in device pixels.
class ITextMeasure
{
public:
    virtual ~ITextMeasure() = default;
    virtual int Width(TextStyle style, Char16 unit) = 0;
    virtual int Height(TextStyle style) = 0;
};

// Lengths in device pixels.
struct LayoutMetrics
{
    // Left and right of the text, and above its beginning.
    int Margin = 0;
    // What each list moves its items to the right.
    int Indent = 0;
    // Above paragraphs, and above headings.
    int Gap = 0;
    int HeadingGap = 0;
};

// A stretch of one line in one look.
struct Piece
{
    int Left = 0;
    int Width = 0;
    TextStyle Style = TextStyle::Normal;
    int Link = -1;
    // Points into the book.
    StringView16 Text;
};

struct Line
{
    int Top = 0;
    int Height = 0;
    size_t FirstPiece = 0;
    size_t PieceCount = 0;
    bool IsRule = false;
};

// Which lines a link is on, in the order of the text.
struct LinkSpan
{
    int Link = 0;
    int Top = 0;
    int Bottom = 0;
};

struct BookLayout
{
    std::vector<Line> Lines;
    std::vector<Piece> Pieces;
    std::vector<LinkSpan> Links;
    // Where each block of the book begins, without the gap above it.
    std::vector<int> BlockTops;
    int Height = 0;
};

// Lays the book out in lines of `width` pixels. The book must stay as it is while the layout is
// used. The time is proportional to the length of the text.
BookLayout LayOut(const Book& book, int width, const LayoutMetrics& metrics, ITextMeasure& measure);

// The first line that ends below `y`; the number of lines behind the last one.
size_t LineAt(const BookLayout& layout, int y);

// The link at a point; -1 where there is none.
int LinkAt(const BookLayout& layout, int x, int y);

// The span of a link; null when nothing of it is shown.
const LinkSpan* SpanOf(const BookLayout& layout, int link);

// The link behind (or, with `forward` false, before) `current` in the text that is at least partly
// between `top` and `bottom`; -1 when there is none. With -1 as `current`, the first (or last) one.
int NextLink(const BookLayout& layout, int current, bool forward, int top, int bottom);

// The block that stands at `y`.
size_t BlockAt(const BookLayout& layout, int y);

} // namespace help
