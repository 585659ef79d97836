// Listing folders: what the handheld's file system doesn't know is left out.
#include "platform/os/Folder.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/TranslationFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using Lines = std::vector<std::wstring>;

// Names, folders with a backslash behind them, sorted.
Lines Listed(const std::wstring& folder)
{
    Lines lines;
    for (const os::FolderEntry& entry : os::ListFolder(folder + L"\\*.*"))
        lines.push_back(entry.Name + (entry.IsFolder ? L"\\" : L""));
    std::sort(lines.begin(), lines.end());
    return lines;
}

// Makes every entry a link, as far as the one who lists can tell.
decltype(&FindNextFileW) g_findNext;

BOOL WINAPI FindNextLink(HANDLE find, WIN32_FIND_DATAW* found)
{
    const BOOL result = g_findNext(find, found);
    found->dwFileAttributes |= FILE_ATTRIBUTE_REPARSE_POINT;
    return result;
}

class Folders : public testing::Test
{
protected:
    Folders()
    {
        folder.Write(L"a.txt", "");
        folder.Write(L"b", "");
        CreateDirectoryW((folder.Path() + L"\\c.d").c_str(), nullptr);
    }
    ~Folders() override { RemoveDirectoryW((folder.Path() + L"\\c.d").c_str()); }

    CTempFolder folder;
};

} // namespace

TEST_F(Folders, FilesAndFoldersAreListedWithoutTheEntriesOfOneAndTwoDots)
{
    EXPECT_EQ((Lines{L"a.txt", L"b", L"c.d\\"}), Listed(folder.Path()));
}

TEST_F(Folders, LinksToFoldersAreLeftOutAndLinksToFilesAreNot)
{
    g_findNext = FindNextFileW;
    const CImportPatch patch(GetModuleHandleW(nullptr), "kernel32.dll", "FindNextFileW",
                             FindNextLink);
    EXPECT_EQ((Lines{L"a.txt", L"b"}), Listed(folder.Path()));
}

TEST_F(Folders, AnEmptyFolderHasNoEntries)
{
    EXPECT_EQ(Lines{}, Listed(folder.Path() + L"\\c.d"));
}

TEST_F(Folders, WhatIsNoFolderHasNoEntries)
{
    EXPECT_EQ(Lines{}, Listed(folder.Path() + L"\\nowhere"));
    EXPECT_EQ(Lines{}, Listed(folder.Path() + L"\\a.txt"));
    EXPECT_EQ(Lines{}, Listed(std::wstring(40000, L'x')));
}
