// The rules of the file tree as values: joining and splitting paths, and which files are listed.
#include "ui/FileTreeEntries.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace filetree
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

std::string Narrow(StringView16 text)
{
    return std::string(text.begin(), text.end());
}

std::string Join(const std::string& folder, const std::string& name)
{
    return Narrow(JoinPath(Wide(folder), Wide(name)));
}

// Exactly as long as the name: nothing outside it may be read.
bool IsListed(const std::string& name, bool isHidden = false)
{
    const String16 wide = Wide(name);
    return IsListedFile(wide, isHidden, FoldAscii);
}

// "FOLDER|NAME", or "none" for a path that can't be split.
std::string Split(const std::string& path)
{
    const String16 wide = Wide(path);
    StringView16 folder = TEXT16("untouched");
    StringView16 name = TEXT16("untouched");
    if (SplitPath(wide, folder, name))
        return Narrow(folder) + "|" + Narrow(name);
    EXPECT_EQ(TEXT16("untouched"), folder);
    EXPECT_EQ(TEXT16("untouched"), name);
    return "none";
}

} // namespace

TEST(JoinedPaths, InAnEmptyFolderAreTheNameAlone)
{
    EXPECT_EQ("Windows", Join("", "Windows"));
    EXPECT_EQ("\\", Join("", "\\"));
    EXPECT_EQ("", Join("", ""));
}

TEST(JoinedPaths, HaveOneBackslashBetweenFolderAndName)
{
    EXPECT_EQ("\\Windows\\a.exe", Join("\\Windows", "a.exe"));
    EXPECT_EQ("\\Windows\\a.exe", Join("\\Windows\\", "a.exe"));
    EXPECT_EQ("\\a.exe", Join("\\", "a.exe"));
}

TEST(JoinedPaths, KeepWhatIsUnusual)
{
    EXPECT_EQ("\\Windows\\", Join("\\Windows", ""));
    EXPECT_EQ("\\\\a", Join("\\", "\\a"));
    EXPECT_EQ("a/\\b", Join("a/", "b"));
    EXPECT_EQ("a\\\\b", Join("a\\\\", "b"));
}

TEST(JoinedPaths, MayBeLongerThanAnySystemsLimit)
{
    const std::string folder(40000, 'f');
    EXPECT_EQ(folder + "\\" + folder, Join(folder, folder));
}

TEST(SplitPaths, AreSplitAtTheLastBackslash)
{
    EXPECT_EQ("\\Windows|Programs", Split("\\Windows\\Programs"));
    EXPECT_EQ("|Windows", Split("\\Windows"));
    EXPECT_EQ("\\Windows|", Split("\\Windows\\"));
    EXPECT_EQ("|", Split("\\"));
    EXPECT_EQ("\\|x", Split("\\\\x"));
}

TEST(SplitPaths, AreNoneWithoutAnyBackslash)
{
    for (const char* const path : {"", "Windows", "a/b", "C:"})
        EXPECT_EQ("none", Split(path)) << path;
}

TEST(ListedFiles, AreThoseWithoutAnyDot)
{
    for (const char* const name : {"a", "README", "exe", "no dot here", ""})
    {
        EXPECT_TRUE(IsListed(name)) << name;
        EXPECT_TRUE(IsListed(name, true)) << name;
    }
}

TEST(ListedFiles, AreProgramsAndShortcutsWhateverTheirCaseAndAttributes)
{
    for (const char* const name : {"a.exe", "A.EXE", "b.lnk", "b.LnK", ".exe", ".lnk", "a.txt.exe"})
    {
        EXPECT_TRUE(IsListed(name)) << name;
        EXPECT_TRUE(IsListed(name, true)) << name;
    }
}

TEST(ListedFiles, AreLibrariesUnlessTheyAreHidden)
{
    for (const char* const name : {"a.dll", "A.DLL", ".dll", "a.exe.dll"})
    {
        EXPECT_TRUE(IsListed(name)) << name;
        EXPECT_FALSE(IsListed(name, true)) << name;
    }
}

TEST(ListedFiles, AreNoOthers)
{
    for (const char* const name : {"a.txt", "a.", ".", "..", "a.ex", "a.exes", "a.exe.", "a.exe ",
                                   "a.lnk.txt", "a.dl", "a.dll2", "a. exe"})
        EXPECT_FALSE(IsListed(name)) << name;
}

TEST(ListedFiles, AreAskedForTheirExtensionFoldedUnitByUnit)
{
    // A fold of the caller's: everything is an "e" to it.
    EXPECT_FALSE(IsListedFile(TEXT16("a.exe"), false, [](Char16) { return Char16{'e'}; }));
    EXPECT_TRUE(IsListedFile(TEXT16("a.EXE"), false, FoldAscii));
    EXPECT_FALSE(IsListedFile(TEXT16("a.EXE"), false, [](Char16 unit) { return unit; }));
}

// Joining and splitting undo each other, whatever the names are.
TEST(SplitPaths, OfAnyJoinedPathGiveItsPartsBack)
{
    std::mt19937 random(1);
    const auto text = [&](size_t most)
    {
        String16 made;
        for (size_t length = random() % (most + 1); length > 0; --length)
            made += static_cast<Char16>("\\.ab"[random() % 4]);
        return made;
    };
    for (int i = 0; i < 20000; ++i)
    {
        const String16 folder = text(6);
        String16 name = text(6);
        name.erase(std::remove(name.begin(), name.end(), Char16{'\\'}), name.end());
        if (folder.empty())
            continue;
        const String16 path = JoinPath(folder, name);
        StringView16 first;
        StringView16 second;
        ASSERT_TRUE(SplitPath(path, first, second));
        EXPECT_EQ(name, second);
        const bool hadSeparator = folder.back() == Char16{'\\'};
        EXPECT_EQ(hadSeparator ? StringView16(folder).substr(0, folder.size() - 1)
                               : StringView16(folder),
                  first);
        IsListedFile(name, i % 2 == 0, FoldAscii);
    }
}

} // namespace filetree
