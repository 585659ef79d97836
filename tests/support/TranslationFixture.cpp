#include "tests/support/TranslationFixture.h"

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
    RemoveDirectoryW(m_path.c_str());
}

std::wstring WriteTranslation(const CTempFolder& folder, const std::wstring& entries)
{
    const std::wstring path = folder.Path() + L"\\TavLumenar.txt";
    const std::wstring text = L"\xFEFF" + entries;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &written,
              nullptr);
    CloseHandle(file);
    EXPECT_EQ(text.size() * sizeof(wchar_t), written);
    return path;
}

void SetInstallFolder(CRegistrySandbox& registry, const CTempFolder& folder)
{
    registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", folder.Path());
}
