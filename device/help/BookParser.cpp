// Makes blocks of tags and text. Nesting is counted, not recursed into, so that any depth is fine.
#include "device/help/Book.h"

#include <algorithm>

#include "device/help/HtmlReader.h"
#include "frame/TextFormat.h"

namespace help
{
namespace
{

// A real page has a hundredth of this; more would only cost memory.
constexpr size_t kMostBlocks = 50000;
constexpr size_t kMostRuns = 200000;
constexpr size_t kMostPlaces = 50000;
constexpr size_t kLongestTitle = 120;
// Deeper lists are shown at this depth: the screen is narrow.
constexpr int kDeepestIndent = 6;

constexpr Char16 kNoBreakSpace = 0x00A0;
constexpr Char16 kBullet = 0x2022;

struct List
{
    bool Ordered;
    int Number;
};

class CBookBuilder
{
public:
    explicit CBookBuilder(Book& book) : m_book(book) {}

    bool IsFull() const
    {
        return m_book.Blocks.size() >= kMostBlocks || m_runs >= kMostRuns ||
               m_book.Links.size() >= kMostPlaces || m_places >= kMostPlaces;
    }
    void TakeText(StringView16 raw);
    void TakeOpen(const HtmlToken& tag);
    void TakeClose(const String16& name);
    void Finish();

private:
    void OpenLink(const HtmlToken& tag);
    void OpenInline(const HtmlToken& tag);
    bool OpenBlock(const String16& name);
    void OpenList(const String16& name);
    void BeginBlock(BlockKind kind);
    void EndBlock();
    Block& CurrentBlock();
    void Append(Char16 unit);
    void AppendCollapsed(Char16 unit);
    void NoteAnchor(const HtmlToken& tag);
    int Indent() const;

    Book& m_book;
    size_t m_runs = 0;
    size_t m_places = 0;
    bool m_isOpen = false;
    bool m_inTitle = false;
    // The last character that was taken is white space, which swallows what follows.
    bool m_afterSpace = true;
    BlockKind m_kind = BlockKind::Paragraph;
    String16 m_mark;
    std::vector<List> m_lists;
    std::vector<String16> m_waitingAnchors;
    int m_bold = 0;
    int m_preformatted = 0;
    int m_quotes = 0;
    int m_link = -1;
};

bool IsBold(const String16& name)
{
    return name == TEXT16("b") || name == TEXT16("strong") || name == TEXT16("em") ||
           name == TEXT16("i") || name == TEXT16("kbd") || name == TEXT16("dt") ||
           name == TEXT16("th");
}

bool IsQuote(const String16& name)
{
    return name == TEXT16("blockquote") || name == TEXT16("dd");
}

bool IsList(const String16& name)
{
    return name == TEXT16("ul") || name == TEXT16("ol");
}

// What else begins on a line of its own.
bool IsPlainBlock(const String16& name)
{
    static constexpr StringView16 kNames[] = {
        TEXT16("p"),     TEXT16("div"),     TEXT16("body"),   TEXT16("section"), TEXT16("article"),
        TEXT16("nav"),   TEXT16("header"),  TEXT16("footer"), TEXT16("dl"),      TEXT16("dt"),
        TEXT16("table"), TEXT16("caption"), TEXT16("tr"),     TEXT16("main"),    TEXT16("address"),
    };
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames);
}

// Headings below the third level look like it.
bool IsHeading(const String16& name)
{
    return name.size() == 2 && name[0] == 'h' && name[1] >= '1' && name[1] <= '6';
}

BlockKind KindOfHeading(const String16& name)
{
    return name[1] == '1'   ? BlockKind::Heading1
           : name[1] == '2' ? BlockKind::Heading2
                            : BlockKind::Heading3;
}

String16 NumberText(int number)
{
    return DecimalText(number) + Char16{'.'};
}

int CBookBuilder::Indent() const
{
    return std::min(static_cast<int>(m_lists.size()) + m_quotes, kDeepestIndent);
}

Block& CBookBuilder::CurrentBlock()
{
    if (!m_isOpen)
    {
        Block block;
        block.Kind = m_kind;
        block.Indent = Indent();
        block.Mark.swap(m_mark);
        for (String16& name : m_waitingAnchors)
            m_book.Anchors.push_back({std::move(name), m_book.Blocks.size()});
        m_waitingAnchors.clear();
        m_book.Blocks.push_back(std::move(block));
        m_isOpen = true;
        m_afterSpace = true;
    }
    return m_book.Blocks.back();
}

void CBookBuilder::BeginBlock(BlockKind kind)
{
    EndBlock();
    m_kind = kind;
}

void CBookBuilder::EndBlock()
{
    if (m_isOpen && !m_book.Blocks.back().Runs.empty())
    {
        String16& last = m_book.Blocks.back().Runs.back().Text;
        if (!last.empty() && last.back() == ' ')
            last.pop_back();
    }
    m_isOpen = false;
    m_kind = BlockKind::Paragraph;
}

void CBookBuilder::Append(Char16 unit)
{
    Block& block = CurrentBlock();
    const bool isBold = m_bold > 0;
    if (block.Runs.empty() || block.Runs.back().Bold != isBold || block.Runs.back().Link != m_link)
    {
        block.Runs.push_back({{}, isBold, m_link});
        ++m_runs;
    }
    block.Runs.back().Text += unit;
}

void CBookBuilder::AppendCollapsed(Char16 unit)
{
    if (!IsHtmlSpace(unit))
    {
        Append(unit);
        m_afterSpace = false;
    }
    else if (m_isOpen && !m_afterSpace)
    {
        Append(' ');
        m_afterSpace = true;
    }
}

void CBookBuilder::TakeText(StringView16 raw)
{
    const String16 text = DecodeEntities(raw);
    if (m_inTitle)
    {
        for (const Char16 unit : text)
            if (m_book.Title.size() < kLongestTitle)
                m_book.Title += IsHtmlSpace(unit) ? Char16{' '} : unit;
        return;
    }
    for (const Char16 unit : text)
    {
        if (m_preformatted == 0)
            AppendCollapsed(unit);
        else if (unit != '\r')
            Append(unit == ' ' || unit == '\t' ? kNoBreakSpace : unit);
    }
}

void CBookBuilder::NoteAnchor(const HtmlToken& tag)
{
    if (tag.Content.empty())
        return;
    String16 name = AttributeOf(tag.Content, TEXT16("id"));
    if (name.empty() && tag.Name == TEXT16("a"))
        name = AttributeOf(tag.Content, TEXT16("name"));
    if (name.empty())
        return;
    ++m_places;
    if (m_isOpen)
        m_book.Anchors.push_back({std::move(name), m_book.Blocks.size() - 1});
    else
        m_waitingAnchors.push_back(std::move(name));
}

void CBookBuilder::OpenLink(const HtmlToken& tag)
{
    String16 target = AttributeOf(tag.Content, TEXT16("href"));
    m_link = target.empty() ? -1 : static_cast<int>(m_book.Links.size());
    if (!target.empty())
        m_book.Links.push_back(std::move(target));
}

void CBookBuilder::OpenInline(const HtmlToken& tag)
{
    if (tag.Name == TEXT16("td") || tag.Name == TEXT16("th"))
        AppendCollapsed(' ');
    if (IsBold(tag.Name))
        ++m_bold;
    else if (tag.Name == TEXT16("a"))
        OpenLink(tag);
    else if (tag.Name == TEXT16("img"))
        TakeText(AttributeOf(tag.Content, TEXT16("alt")));
    else if (tag.Name == TEXT16("br"))
    {
        Append('\n');
        m_afterSpace = true;
    }
}

void CBookBuilder::OpenList(const String16& name)
{
    if (IsList(name))
    {
        BeginBlock(BlockKind::Paragraph);
        // What lies deeper than anybody looks is not worth its memory.
        if (m_lists.size() < kMostPlaces)
            m_lists.push_back({name == TEXT16("ol"), 0});
    }
    else if (name == TEXT16("li"))
    {
        BeginBlock(BlockKind::Paragraph);
        const bool isOrdered = !m_lists.empty() && m_lists.back().Ordered;
        m_mark = isOrdered ? NumberText(++m_lists.back().Number) : String16(1, kBullet);
    }
}

bool CBookBuilder::OpenBlock(const String16& name)
{
    if (IsHeading(name))
        BeginBlock(KindOfHeading(name));
    else if (name == TEXT16("hr"))
    {
        BeginBlock(BlockKind::Rule);
        CurrentBlock();
        EndBlock();
    }
    else if (name == TEXT16("pre"))
    {
        BeginBlock(BlockKind::Paragraph);
        ++m_preformatted;
    }
    else if (IsQuote(name))
    {
        BeginBlock(BlockKind::Paragraph);
        m_quotes = std::min(m_quotes + 1, kDeepestIndent);
    }
    else if (IsPlainBlock(name))
        BeginBlock(BlockKind::Paragraph);
    else
        return false;
    return true;
}

void CBookBuilder::TakeOpen(const HtmlToken& tag)
{
    // A second title is none.
    m_inTitle = tag.Name == TEXT16("title") && m_book.Title.empty();
    if (!OpenBlock(tag.Name))
        OpenList(tag.Name);
    OpenInline(tag);
    NoteAnchor(tag);
}

void CBookBuilder::TakeClose(const String16& name)
{
    m_inTitle = false;
    if (IsBold(name))
        m_bold = std::max(0, m_bold - 1);
    if (name == TEXT16("a"))
        m_link = -1;
    if (name == TEXT16("pre"))
        m_preformatted = std::max(0, m_preformatted - 1);
    const bool endsBlock = IsHeading(name) || IsPlainBlock(name) || IsQuote(name) || IsList(name) ||
                           name == TEXT16("li") || name == TEXT16("pre");
    if (endsBlock)
        EndBlock();
    if (IsQuote(name))
        m_quotes = std::max(0, m_quotes - 1);
    if (IsList(name) && !m_lists.empty())
        m_lists.pop_back();
    // An item without a word leaves no bullet for the next block.
    if (IsList(name) || name == TEXT16("li"))
        m_mark.clear();
}

void CBookBuilder::Finish()
{
    EndBlock();
    if (!m_waitingAnchors.empty())
        CurrentBlock();
}

Char16 UnescapedAt(StringView16 text, size_t& i)
{
    const auto digit = [&](size_t at)
    {
        const Char16 unit = at < text.size() ? LowerAscii(text[at]) : Char16{0};
        return unit >= '0' && unit <= '9'   ? unit - '0'
               : unit >= 'a' && unit <= 'f' ? unit - 'a' + 10
                                            : -1;
    };
    if (text[i] != '%' || digit(i + 1) < 0 || digit(i + 2) < 0)
        return text[i];
    i += 2;
    return static_cast<Char16>(digit(i - 1) * 16 + digit(i));
}

String16 Unescaped(StringView16 text)
{
    String16 plain;
    for (size_t i = 0; i < text.size(); ++i)
        plain += UnescapedAt(text, i);
    return plain;
}

} // namespace

Book ParseBook(StringView16 html)
{
    Book book;
    CBookBuilder builder(book);
    CHtmlReader reader(html);
    HtmlToken token;
    while (!book.Cut && reader.Next(token))
    {
        if (token.Kind == TokenKind::Text)
            builder.TakeText(token.Content);
        else if (token.Kind == TokenKind::Close)
            builder.TakeClose(token.Name);
        else if (token.Name == TEXT16("script") || token.Name == TEXT16("style"))
            reader.SkipBehind(token.Name);
        else
            builder.TakeOpen(token);
        book.Cut = builder.IsFull();
    }
    builder.Finish();
    return book;
}

std::optional<size_t> FindTopic(const Book& book, StringView16 topic)
{
    for (const Anchor& anchor : book.Anchors)
        if (anchor.Name == topic)
            return anchor.Block;
    const String16 wanted = LowerAscii(Unescaped(topic));
    for (const Anchor& anchor : book.Anchors)
        if (LowerAscii(anchor.Name) == wanted)
            return anchor.Block;
    return std::nullopt;
}

} // namespace help
