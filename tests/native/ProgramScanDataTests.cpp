// The program scan as values: names, texts, and the bytes of the question.
#include "menu/ProgramScanData.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace programs
{
namespace
{

Char16 FoldAscii(Char16 unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char16>(unit + ('a' - 'A')) : unit;
}

String16 Wide(const std::string& text)
{
    return String16(text.begin(), text.end());
}

bool IsTaken(const std::string& name)
{
    // Exactly as long as the name: nothing outside it may be read.
    const String16 wide = Wide(name);
    return IsProgramFile(wide, FoldAscii);
}

std::string TextOf(const std::string& path)
{
    const String16 text = DisplayText(Wide(path));
    return std::string(text.begin(), text.end());
}

TEST(ProgramFiles, AreShortcutsAndProgramsOfAtLeastFiveCharacters)
{
    for (const char* const taken : {"a.lnk", "b.exe", "A.LNK", "B.eXe", "..exe", "a.exe.lnk"})
        EXPECT_TRUE(IsTaken(taken)) << taken;
    for (const char* const other :
         {"", "k", "lnk", ".lnk", ".exe", "alnk", "a.ln", "a.lnk ", "a.lnks", "a.dll", "exe.txt"})
        EXPECT_FALSE(IsTaken(other)) << other;
}

TEST(DisplayTexts, AreTheLastComponentUpToItsLastDot)
{
    EXPECT_EQ("Chess", TextOf("\\Windows\\Start Menu\\Chess.lnk"));
    EXPECT_EQ("Read.Me", TextOf("\\a.b\\Read.Me.exe"));
    EXPECT_EQ("Games", TextOf("\\Programs\\Games"));
    EXPECT_EQ("", TextOf("\\Programs\\.hidden"));
    EXPECT_EQ("Chess", TextOf("Chess.lnk"));
    EXPECT_EQ("", TextOf(""));
    EXPECT_EQ("", TextOf("\\Programs\\"));
}

TEST(DisplayTexts, ASlashSeparatesOnlyWhereThereIsNoBackslash)
{
    EXPECT_EQ("Chess", TextOf("Programs/Games/Chess.lnk"));
    EXPECT_EQ("a/b", TextOf("\\Programs\\a/b.lnk"));
}

TEST(FilterRequest, HoldsPathsOf259Characters)
{
    EXPECT_TRUE(FitsRequest(String16(259, 'x')));
    EXPECT_FALSE(FitsRequest(String16(260, 'x')));
    EXPECT_TRUE(FitsRequest(String16()));
}

TEST(FilterRequest, IsAZeroWordAndThePathWithZerosBehindIt)
{
    const FilterRequest request = MakeRequest(Wide("\\ab"));
    unsigned char bytes[524];
    std::memcpy(bytes, &request, sizeof(bytes));
    std::string expected(524, '\0');
    expected[4] = '\\';
    expected[6] = 'a';
    expected[8] = 'b';
    EXPECT_EQ(0, std::memcmp(expected.data(), bytes, sizeof(bytes)));
}

TEST(FilterRequest, TheLongestPathStillEndsInAZero)
{
    const FilterRequest request = MakeRequest(String16(259, 'x'));
    EXPECT_EQ('x', request.Path[258]);
    EXPECT_EQ(0, request.Path[259]);
}

} // namespace
} // namespace programs
