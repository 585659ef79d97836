#include "tests/device/help/HelpFolder.h"

#include <gtest/gtest.h>

#include "device/help/BookText.h"
#include "device/help/PageFile.h"
#include "platform/Handles.h"
#include "tests/support/FolderTree.h"

CHelpFolder::CHelpFolder()
{
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    m_path = std::wstring(temp) + L"tav-help-" + std::to_wstring(GetCurrentProcessId()) + L"\\";
    CreateDirectoryW(m_path.c_str(), nullptr);
    m_hive.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir",
                   m_path.substr(0, m_path.size() - 1));
}

CHelpFolder::~CHelpFolder()
{
    RemoveFolderTree(m_path.substr(0, m_path.size() - 1));
}

std::wstring CHelpFolder::Add(const std::wstring& name, const std::string& bytes) const
{
    const std::wstring path = m_path + name;
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    EXPECT_TRUE(file && WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()),
                                  &written, nullptr))
        << "the page can't be written";
    return path;
}

std::string BytesOf(const std::wstring& path)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    EXPECT_TRUE(file) << "the file can't be opened";
    std::string bytes(file ? GetFileSize(file.get(), nullptr) : 0, '\0');
    DWORD length = 0;
    if (!bytes.empty())
        ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr);
    return bytes;
}

std::wstring BookPath()
{
    const std::wstring program = help::ProgramPath();
    return program.substr(0, program.find_last_of(L'\\') + 1) + L"TavLumenar.htm";
}

std::wstring BookSource()
{
    const std::string bytes = BytesOf(BookPath());
    return help::DecodePage(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}
