#include "tests/frame/TranslationFixture.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <atomic>

CTemporaryFolder::CTemporaryFolder()
{
    static std::atomic<int> counter{0};
    wchar_t base[MAX_PATH + 1] = {};
    GetTempPathW(MAX_PATH + 1, base);
    m_path = std::wstring(base) + L"tav" + std::to_wstring(GetCurrentProcessId()) + L"-" +
             std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(++counter);
    EXPECT_TRUE(CreateDirectoryW(m_path.c_str(), nullptr));
}

CTemporaryFolder::~CTemporaryFolder()
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

std::wstring CTemporaryFolder::Write(const wchar_t* name, const std::string& bytes) const
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

void LoadTexts(CTavLocalizerAPI& localizer, const std::wstring& text)
{
    const CTemporaryFolder folder;
    ASSERT_TRUE(localizer.LoadFile(folder.Write(L"texts.txt", Utf16File(text)).c_str()));
}
