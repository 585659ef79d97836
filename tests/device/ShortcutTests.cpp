// The one-line shortcut files of the handheld.
#include "device/Shortcut.h"

#include <gtest/gtest.h>

using shortcut::Shortcut;

namespace
{

Shortcut Read(const std::wstring& text)
{
    Shortcut found;
    EXPECT_TRUE(shortcut::Parse(text, found)) << text;
    return found;
}

bool IsShortcut(const std::wstring& text)
{
    Shortcut found;
    return shortcut::Parse(text, found);
}

} // namespace

TEST(ShortcutFile, TargetAndIconAreRead)
{
    const Shortcut found = Read(L"35#\"\\Windows\\calc.exe\"?\\shell.exe,-120");
    EXPECT_EQ(L"\\Windows\\calc.exe", found.Target);
    EXPECT_EQ(L"\\shell.exe", found.IconFile);
    EXPECT_EQ(120, found.Icon);
}

TEST(ShortcutFile, ATargetWithoutQuotesEndsAtTheFirstBlank)
{
    EXPECT_EQ(L"\\calc.exe", Read(L"16#\\calc.exe -large").Target);
}

TEST(ShortcutFile, WithoutAnIconPartThereIsNoIcon)
{
    const Shortcut found = Read(L"11#\"\\calc.exe\"");
    EXPECT_TRUE(found.IconFile.empty());
    EXPECT_EQ(0, found.Icon);
}

TEST(ShortcutFile, WhatStandsBehindTheStatedLengthIsIgnored)
{
    EXPECT_EQ(L"\\calc.exe", Read(L"9#\\calc.exe?\\x,-5").Target);
}

TEST(ShortcutFile, OtherFilesAreNoShortcuts)
{
    EXPECT_FALSE(IsShortcut(L""));
    EXPECT_FALSE(IsShortcut(L"#\\calc.exe"));
    EXPECT_FALSE(IsShortcut(L"x9#\\calc.exe"));
    EXPECT_FALSE(IsShortcut(L"9#"));
    EXPECT_FALSE(IsShortcut(L"0#\\calc.exe"));
    EXPECT_FALSE(IsShortcut(L"999999#\\calc.exe"));
    EXPECT_FALSE(IsShortcut(L"2#\"\""));
}

TEST(ShortcutFile, AnEndlessIconNumberIsCutOff)
{
    EXPECT_EQ(999999999, Read(L"99#\\a.exe?\\b,-9999999999999999").Icon);
}

TEST(ShortcutFile, WhatIsWrittenIsReadBack)
{
    const Shortcut found = Read(shortcut::Format({L"\\My Files\\a.exe", L"\\i.exe", 107}));
    EXPECT_EQ(L"\\My Files\\a.exe", found.Target);
    EXPECT_EQ(L"\\i.exe", found.IconFile);
    EXPECT_EQ(107, found.Icon);
}
