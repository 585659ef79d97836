// The help book itself: its links lead somewhere, and it speaks of everything that the module's
// dialogs show.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "device/help/Book.h"
#include "device/help/HtmlReader.h"
#include "device/help/PageFile.h"
#include "tests/device/ModuleTexts.h"
#include "tests/device/help/HelpFolder.h"

namespace
{

help::Book ReadBook()
{
    help::ReadPage page = help::ReadPageFile(BookPath());
    EXPECT_EQ(L"", page.Problem);
    return std::move(page.Contents);
}

std::wstring TextOf(const help::Block& block)
{
    std::wstring text;
    for (const help::Run& run : block.Runs)
        text += run.Text;
    return text;
}

// All words of the book with single blanks between.
std::wstring WordsOf(const help::Book& book)
{
    std::wstring words;
    for (const help::Block& block : book.Blocks)
        words += TextOf(block) + L" ";
    return words;
}

// The parts of a text between its placeholders.
std::vector<std::wstring> PartsOf(const std::wstring& text)
{
    std::vector<std::wstring> parts;
    size_t begin = 0;
    while (begin < text.size())
    {
        const size_t end = std::min(text.find(L'%', begin), text.size());
        if (end > begin)
            parts.push_back(text.substr(begin, end - begin));
        begin = end + 2;
    }
    return parts;
}

bool IsEmptyElement(const std::wstring& name)
{
    return name == L"meta" || name == L"br" || name == L"hr" || name == L"img";
}

} // namespace

TEST(Book, HasAChapterForEveryDialog)
{
    const help::Book book = ReadBook();
    for (const wchar_t* topic :
         {L"Main_Contents", L"Customize_Menu", L"Edit_Item", L"Choose_Icon", L"Select_File",
          L"Select_Link", L"Menu_Options", L"Manage_Pinned", L"Customize_Now", L"Choose_Layout",
          L"Select_City", L"Keys", L"Stylus", L"Storage"})
    {
        const std::optional<size_t> block = help::FindTopic(book, topic);
        ASSERT_TRUE(block) << topic;
        EXPECT_LE(book.Blocks[*block].Kind, help::BlockKind::Heading2) << topic;
    }
}

TEST(Book, EveryLinkLeadsToAChapter)
{
    const help::Book book = ReadBook();
    EXPECT_GE(book.Links.size(), 16u);
    for (const std::wstring& link : book.Links)
    {
        ASSERT_EQ(L'#', link[0]) << link;
        const auto exists = [&](const help::Anchor& anchor)
        { return anchor.Name == link.substr(1); };
        EXPECT_TRUE(std::any_of(book.Anchors.begin(), book.Anchors.end(), exists)) << link;
    }
}

TEST(Book, TheContentsLeadToEveryChapter)
{
    const help::Book book = ReadBook();
    for (const help::Anchor& anchor : book.Anchors)
    {
        const bool isChapter = book.Blocks[anchor.Block].Kind == help::BlockKind::Heading2;
        EXPECT_TRUE(!isChapter ||
                    std::count(book.Links.begin(), book.Links.end(), L"#" + anchor.Name))
            << anchor.Name;
    }
}

TEST(Book, NoTwoChaptersHaveTheSameName)
{
    std::set<std::wstring> names;
    for (const help::Anchor& anchor : ReadBook().Anchors)
        EXPECT_TRUE(names.insert(help::LowerAscii(anchor.Name)).second) << anchor.Name;
}

TEST(Book, EveryTextOfTheModulesDialogsIsMentioned)
{
    const std::wstring words = WordsOf(ReadBook());
    const std::set<std::wstring> texts = TextsOfModule(L"TavLumenarDialogs.dll");
    EXPECT_GE(texts.size(), 20u) << "the module's resources were not found";
    for (const std::wstring& text : texts)
        for (const std::wstring& part : PartsOf(text))
        {
            const size_t first = part.find_first_not_of(L' ');
            EXPECT_NE(std::wstring::npos, words.find(part.substr(std::min(first, part.size()))))
                << part;
        }
}

TEST(Book, EveryTagIsClosedInItsOrder)
{
    const std::wstring source = BookSource();
    help::CHtmlReader reader(source);
    help::HtmlToken token;
    std::vector<std::wstring> open;
    while (reader.Next(token))
    {
        if (token.Kind == help::TokenKind::Open && !IsEmptyElement(token.Name))
            open.push_back(token.Name);
        if (token.Kind != help::TokenKind::Close)
            continue;
        ASSERT_FALSE(open.empty()) << token.Name;
        EXPECT_EQ(open.back(), token.Name);
        open.pop_back();
    }
    EXPECT_TRUE(open.empty());
}

TEST(Book, IsShownWhole)
{
    const help::Book book = ReadBook();
    EXPECT_FALSE(book.Cut);
    EXPECT_EQ(L"Tav Lumenar Help", book.Title);
}
