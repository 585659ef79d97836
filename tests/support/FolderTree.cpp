#include "tests/support/FolderTree.h"

#include "platform/Win.h"

#include <gtest/gtest.h>

#include <filesystem>

std::wstring CreateEmptyFile(const std::wstring& path)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, file) << GetLastError();
    CloseHandle(file);
    return path;
}

void RemoveFolderTree(const std::wstring& folder)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE find = FindFirstFileW((folder + L"\\*").c_str(), &found);
    for (BOOL more = find != INVALID_HANDLE_VALUE; more; more = FindNextFileW(find, &found))
    {
        const std::wstring name = found.cFileName;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        {
            if (name != L"." && name != L"..")
                RemoveFolderTree(folder + L"\\" + name);
        }
        else
            DeleteFileW((folder + L"\\" + name).c_str());
    }
    FindClose(find);
    RemoveDirectoryW(folder.c_str());
}
