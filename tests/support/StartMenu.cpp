#include "tests/support/StartMenu.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>

namespace
{

constexpr const wchar_t* kShellFolders =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

std::wstring UniqueFolder()
{
    static std::atomic<int> counter{0};
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    return folder + (L"tav" + std::to_wstring(GetCurrentProcessId())) + L"s" +
           std::to_wstring(++counter);
}

// Also deeper than the standard library can go.
void RemoveTree(const std::wstring& folder)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE find = FindFirstFileW((folder + L"\\*").c_str(), &found);
    for (BOOL more = find != INVALID_HANDLE_VALUE; more; more = FindNextFileW(find, &found))
    {
        const std::wstring name = found.cFileName;
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
        {
            if (name != L"." && name != L"..")
                RemoveTree(folder + L"\\" + name);
        }
        else
            DeleteFileW((folder + L"\\" + name).c_str());
    }
    FindClose(find);
    RemoveDirectoryW(folder.c_str());
}

} // namespace

CStartMenu::CStartMenu() : m_user(HKEY_CURRENT_USER), m_path(UniqueFolder())
{
    AddFolder(L"Programs");
    SetStartMenu(m_path);
    SetPrograms(PathOf(L"Programs"));
}

CStartMenu::~CStartMenu()
{
    RemoveTree(m_path);
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(m_path.c_str()));
}

std::wstring CStartMenu::AddFile(const std::wstring& below) const
{
    const std::filesystem::path path = PathOf(below);
    std::filesystem::create_directories(path.parent_path());
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, file) << GetLastError();
    CloseHandle(file);
    return path;
}

std::wstring CStartMenu::AddFolder(const std::wstring& below) const
{
    std::filesystem::create_directories(PathOf(below));
    return PathOf(below);
}

void CStartMenu::Remove(const std::wstring& below) const
{
    RemoveTree(PathOf(below));
}

void CStartMenu::SetPrograms(const std::wstring& path)
{
    m_user.SetText(kShellFolders, L"Programs", path);
}

void CStartMenu::SetStartMenu(const std::wstring& path)
{
    m_user.SetText(kShellFolders, L"Start Menu", path);
}
