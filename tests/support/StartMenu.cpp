#include "tests/support/StartMenu.h"

#include "tests/support/FolderTree.h"

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

} // namespace

CStartMenu::CStartMenu() : m_user(HKEY_CURRENT_USER), m_path(UniqueFolder())
{
    AddFolder(L"Programs");
    SetStartMenu(m_path);
    SetPrograms(PathOf(L"Programs"));
}

CStartMenu::~CStartMenu()
{
    RemoveFolderTree(m_path);
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(m_path.c_str()));
}

std::wstring CStartMenu::AddFile(const std::wstring& below) const
{
    return CreateEmptyFile(PathOf(below));
}

void CStartMenu::AddManyFiles(const std::wstring& below, int count) const
{
    const std::wstring folder = AddFolder(below) + L"\\";
    for (int i = 0; i < count; ++i)
        CreateEmptyFile(folder + std::to_wstring(i) + L".lnk");
}

std::wstring CStartMenu::AddFolder(const std::wstring& below) const
{
    std::filesystem::create_directories(PathOf(below));
    return PathOf(below);
}

void CStartMenu::Remove(const std::wstring& below) const
{
    RemoveFolderTree(PathOf(below));
}

void CStartMenu::SetPrograms(const std::wstring& path)
{
    m_user.SetText(kShellFolders, L"Programs", path);
}

void CStartMenu::SetStartMenu(const std::wstring& path)
{
    m_user.SetText(kShellFolders, L"Start Menu", path);
}
