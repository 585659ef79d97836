#include "tests/support/TranslationFixture.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <atomic>

namespace
{

std::wstring UniqueFolder()
{
    static std::atomic<int> counter{0};
    wchar_t temp[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temp);
    return std::wstring(temp) + L"TavLumenarTests-" + std::to_wstring(GetCurrentProcessId()) +
           L"-" + std::to_wstring(++counter);
}

} // namespace

CTempFolder::CTempFolder() : m_path(UniqueFolder())
{
    EXPECT_TRUE(CreateDirectoryW(m_path.c_str(), nullptr)) << GetLastError();
}

CTempFolder::~CTempFolder()
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((m_path + L"\\*").c_str(), &found);
    if (search != INVALID_HANDLE_VALUE)
    {
        do
            DeleteFileW((m_path + L"\\" + found.cFileName).c_str());
        while (FindNextFileW(search, &found));
        FindClose(search);
    }
    EXPECT_TRUE(RemoveDirectoryW(m_path.c_str())) << "a file is still open";
}

std::wstring CTempFolder::Write(const wchar_t* name, const std::string& bytes) const
{
    const std::wstring path = m_path + L"\\" + name;
    const UniqueFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    EXPECT_TRUE(
        WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    return path;
}

std::string Utf16File(const std::wstring& text)
{
    return "\xFF\xFE" + std::string(reinterpret_cast<const char*>(text.data()), text.size() * 2);
}

std::wstring WriteTranslation(const CTempFolder& folder, const std::wstring& entries)
{
    return folder.Write(L"TavLumenar.txt", Utf16File(entries));
}

void SetInstallFolder(CRegistrySandbox& registry, const CTempFolder& folder)
{
    registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", folder.Path());
}
