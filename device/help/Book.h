// A page of help as the viewer shows it: blocks of styled text with links and anchors, and the
// parser that makes it of HTML. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

#include <optional>
#include <vector>

namespace help
{

enum class BlockKind
{
    Heading1,
    Heading2,
    Heading3,
    Paragraph,
    Rule
};

// A stretch of text of one look. White space is collapsed already; a line feed breaks the line.
struct Run
{
    String16 Text;
    bool Bold = false;
    // Index of the target in Book::Links; -1 outside links.
    int Link = -1;
};

struct Block
{
    BlockKind Kind = BlockKind::Paragraph;
    // How many lists or quotations the block is in.
    int Indent = 0;
    // The bullet or number in front of a list's item; empty elsewhere.
    String16 Mark;
    std::vector<Run> Runs;
};

// A place that links and topics name.
struct Anchor
{
    String16 Name;
    size_t Block = 0;
};

struct Book
{
    String16 Title;
    std::vector<Block> Blocks;
    // The targets of the links as written: "#Edit_Item".
    std::vector<String16> Links;
    std::vector<Anchor> Anchors;
    // The page was too long; its end is missing.
    bool Cut = false;
};

// Reads the text of a page: headings, paragraphs, lists, bold, links, anchors, line breaks, rules
// and entities; of everything else the words. Any text is taken, and the time is proportional to
// its length.
Book ParseBook(StringView16 html);

// The block that a topic begins with: the anchor of exactly that name, else one that differs only
// in the case of ASCII letters. "%20" and the like in `topic` are decoded. Nothing for an unknown
// topic.
std::optional<size_t> FindTopic(const Book& book, StringView16 topic);

} // namespace help
