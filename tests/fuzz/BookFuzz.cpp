// Fuzzes the help viewer's reading of a page: any bytes become a book whose parts fit together, and
// its layout has every character of the text but white space, in order, on lines that hold them.
#include "device/help/BookLayout.h"
#include "device/help/BookText.h"
#include "device/help/HelpArguments.h"
#include "device/help/PageName.h"

#include <cstdio>
#include <cstdlib>

namespace
{

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "a book that doesn't fit together: %s\n", what);
    std::abort();
}

// Widths differ by character, so that breaks fall anywhere.
class CAnyMeasure : public help::ITextMeasure
{
public:
    int Width(help::TextStyle style, Char16 unit) override
    {
        return unit % 7 + static_cast<int>(style);
    }
    int Height(help::TextStyle style) override { return 10 + static_cast<int>(style); }
};

void CheckBook(const help::Book& book)
{
    for (const help::Anchor& anchor : book.Anchors)
        Require(anchor.Block < book.Blocks.size(), "anchor");
    for (const help::Block& block : book.Blocks)
    {
        Require(block.Indent >= 0 && block.Indent <= 6, "indent");
        for (const help::Run& run : block.Runs)
            Require(run.Link >= -1 && run.Link < static_cast<int>(book.Links.size()), "link");
    }
}

String16 Dense(StringView16 text)
{
    String16 dense;
    for (const Char16 unit : text)
        if (unit != ' ' && unit != '\n')
            dense += unit;
    return dense;
}

void CheckLayout(const help::Book& book, const help::BookLayout& layout)
{
    String16 expected;
    for (const help::Block& block : book.Blocks)
    {
        if (!block.Runs.empty())
            expected += Dense(block.Mark);
        for (const help::Run& run : block.Runs)
            expected += Dense(run.Text);
    }
    String16 shown;
    for (const help::Piece& piece : layout.Pieces)
        shown += Dense(piece.Text);
    Require(shown == expected, "text");
    size_t pieces = 0;
    int bottom = 0;
    for (const help::Line& line : layout.Lines)
    {
        Require(line.FirstPiece == pieces && line.Top >= bottom, "line");
        pieces += line.PieceCount;
        bottom = line.Top + line.Height;
    }
    Require(pieces == layout.Pieces.size() && bottom <= layout.Height, "end");
    Require(layout.BlockTops.size() == book.Blocks.size(), "blocks");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The first byte chooses the width.
    const int width = size == 0 ? 0 : data[0] * 2;
    const String16 text = help::DecodePage(data + (size != 0), size - (size != 0));
    const help::Book book = help::ParseBook(text);
    CheckBook(book);
    help::LayoutMetrics metrics;
    metrics.Margin = 3;
    metrics.Indent = 5;
    metrics.Gap = 2;
    metrics.HeadingGap = 4;
    CAnyMeasure measure;
    const help::BookLayout layout = help::LayOut(book, width, metrics, measure);
    CheckLayout(book, layout);
    help::LinkAt(layout, width / 2, layout.Height / 2);
    help::FindTopic(book, text);
    const help::HelpRequest request = help::ReadHelpRequest(text, TEXT16("C:\\PegHelp.exe"));
    help::JudgePageName(request.File);
    help::IsOwnTarget(text);
    return 0;
}
