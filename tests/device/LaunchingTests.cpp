// Starting what shortcuts and programs lead to.
#include "device/Launching.h"

#include <gtest/gtest.h>

#include "device/Shortcut.h"
#include "platform/Handles.h"

namespace
{

// A program that every system has and that ends by itself.
constexpr const wchar_t* kProgram = L"C:\\windows\\system32\\hostname.exe";

class Launching : public testing::Test
{
protected:
    Launching()
    {
        wchar_t folder[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"tav-launch-" + std::to_wstring(GetCurrentProcessId());
    }
    ~Launching() override
    {
        for (const wchar_t* extension : {L".lnk", L".exe", L".txt"})
            DeleteFileW((m_path + extension).c_str());
    }

    std::wstring Write(const wchar_t* extension, const std::string& bytes)
    {
        const std::wstring path = m_path + extension;
        const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                              nullptr));
        return path;
    }

    std::wstring WriteShortcut(const wchar_t* target)
    {
        const std::wstring text = shortcut::Format({target, L"", 0});
        return Write(L".lnk", std::string(text.begin(), text.end()));
    }

    std::wstring m_path;
};

} // namespace

TEST_F(Launching, AProgramIsStarted)
{
    EXPECT_EQ(launching::Result::Started, launching::Start(kProgram));
}

TEST_F(Launching, AShortcutStartsItsTarget)
{
    EXPECT_EQ(launching::Result::Started, launching::Start(WriteShortcut(kProgram)));
}

TEST_F(Launching, AShortcutToNothingHasNoProgram)
{
    EXPECT_EQ(launching::Result::NoProgram,
              launching::Start(WriteShortcut(L"\\Windows\\Nothing.exe")));
}

TEST_F(Launching, WhatIsNoProgramIsNotStarted)
{
    const std::wstring text = Write(L".txt", "MZ");
    EXPECT_EQ(launching::Result::NoProgram, launching::Start(text));
    EXPECT_EQ(launching::Result::NoProgram, launching::Start(WriteShortcut(text.c_str())));
    EXPECT_EQ(launching::Result::NoProgram, launching::Start(L""));
    EXPECT_EQ(launching::Result::NoProgram, launching::Start(L"C:\\windows"));
}

TEST_F(Launching, AProgramThatTheSystemRefusesFails)
{
    EXPECT_EQ(launching::Result::Failed, launching::Start(Write(L".exe", "no program")));
}

TEST_F(Launching, AFileThatIsNoShortcutHasNoProgram)
{
    EXPECT_EQ(launching::Result::NoProgram,
              launching::Start(Write(L".lnk", std::string(10000, '#'))));
    EXPECT_EQ(launching::Result::NoProgram, launching::Start(Write(L".lnk", "")));
}

TEST_F(Launching, FoldersAndMissingFilesDoNotExist)
{
    EXPECT_TRUE(launching::Exists(kProgram));
    EXPECT_FALSE(launching::Exists(L"C:\\windows"));
    EXPECT_FALSE(launching::Exists(L"C:\\windows\\nothing.exe"));
}
