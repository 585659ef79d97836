#include "tests/support/DeviceRoot.h"

#include "platform/Win.h"
#include "tests/support/FolderTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace
{

constexpr const wchar_t* kDrive = L"P:";

// Wine takes every folder for a drive that has a drive's name and stands in this place of a prefix.
std::wstring DriveFolder()
{
    wchar_t prefix[MAX_PATH] = {};
    GetEnvironmentVariableW(L"WINEPREFIX", prefix, MAX_PATH);
    std::wstring folder = L"\\\\?\\unix" + std::wstring(prefix) + L"/dosdevices/p:";
    std::replace(folder.begin(), folder.end(), L'/', L'\\');
    return folder;
}

std::wstring OnDrive(const std::wstring& path)
{
    return kDrive + path;
}

} // namespace

// A run that was broken off may have left its drive.
CDeviceRoot::CDeviceRoot() : m_folder(DriveFolder()), m_previous(std::filesystem::current_path())
{
    RemoveFolderTree(m_folder);
    EXPECT_TRUE(CreateDirectoryW(m_folder.c_str(), nullptr)) << GetLastError();
    EXPECT_TRUE(SetCurrentDirectoryW(OnDrive(L"\\").c_str())) << GetLastError();
}

CDeviceRoot::~CDeviceRoot()
{
    SetCurrentDirectoryW(m_previous.c_str());
    RemoveFolderTree(m_folder);
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(m_folder.c_str()));
}

std::wstring CDeviceRoot::AddFile(const std::wstring& path) const
{
    CreateEmptyFile(OnDrive(path));
    return path;
}

std::wstring CDeviceRoot::AddFolder(const std::wstring& path) const
{
    std::filesystem::create_directories(OnDrive(path));
    return path;
}

void CDeviceRoot::RemoveFile(const std::wstring& path) const
{
    EXPECT_TRUE(DeleteFileW(OnDrive(path).c_str())) << GetLastError();
}

void CDeviceRoot::RemoveFolder(const std::wstring& path) const
{
    RemoveFolderTree(OnDrive(path));
}
