// Working the soft keys: by stylus, by keyboard, and with their pop-ups.
#include "tests/platform/aygshell/TestDialog.h"

#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"

namespace
{

POINT KeyCentre(HWND owner, int index)
{
    RECT key{};
    SendMessageW(SHFindMenuBar(owner), TB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&key));
    return CentreOf(key);
}

void TapKey(HWND owner, int index)
{
    PostTap(SHFindMenuBar(owner), KeyCentre(owner, index));
}

POINT KeyOnScreen(HWND owner, int index)
{
    POINT point = KeyCentre(owner, index);
    ClientToScreen(SHFindMenuBar(owner), &point);
    return point;
}

class SoftKeys : public testing::Test
{
protected:
    void Open(UINT menu, DWORD flags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON)
    {
        ASSERT_TRUE(dialog.CreateBar(menu, flags));
        dialog.Open();
    }

    // Answers the pop-up with these keys, one each time it waits; the last must close it.
    void AnswerPopupWith(std::vector<WORD> keys)
    {
        dialog.SetHandler(
            [this, keys](const LoggedMessage& entry, LRESULT&)
            {
                if (entry.Message != WM_ENTERIDLE || entry.WParam != MSGF_MENU)
                    return false;
                popup = ScreenRectOf(reinterpret_cast<HWND>(entry.LParam));
                if (answers < keys.size())
                    PostMessageW(dialog.Window(), WM_KEYDOWN, keys[answers++], 0);
                return false;
            });
    }

    bool RunUntilCommand(WORD id)
    {
        return dialog.RunUntil([this, id] { return dialog.CountCommand(id) > 0; });
    }

    bool RunUntilPopupClosed()
    {
        return dialog.RunUntil([this] { return dialog.Count(WM_EXITMENULOOP) > 0; });
    }

    CTestDialog dialog;
    RECT popup{};
    size_t answers = 0;
};

} // namespace

TEST_F(SoftKeys, ATappedKeySendsItsCommandOnce)
{
    Open(IDM_TWO_KEYS);
    TapKey(dialog.Window(), 1);
    EXPECT_TRUE(RunUntilCommand(2));
    dialog.RunPending();
    EXPECT_EQ(dialog.CountCommand(2), 1);
    EXPECT_EQ(dialog.CountCommand(1), 0);
}

TEST_F(SoftKeys, AClickOnTheBarNeitherActivatesNorDeactivates)
{
    Open(IDM_TWO_KEYS);
    ClickScreen(KeyOnScreen(dialog.Window(), 0));
    EXPECT_TRUE(RunUntilCommand(1));
    EXPECT_EQ(dialog.Count(WM_ACTIVATE), 0);
    EXPECT_EQ(GetActiveWindow(), dialog.Window());
}

TEST_F(SoftKeys, ADisabledKeyIsDead)
{
    Open(IDM_GRAYED_KEY);
    TapKey(dialog.Window(), 0);
    TypeKey(VK_F1);
    TapKey(dialog.Window(), 1);
    EXPECT_TRUE(RunUntilCommand(2));
    EXPECT_EQ(dialog.CountCommand(1), 0);
}

TEST_F(SoftKeys, TheKeysRestWhileTheirOwnerIsDisabled)
{
    Open(IDM_TWO_KEYS);
    EnableWindow(dialog.Window(), FALSE);
    TapKey(dialog.Window(), 0);
    dialog.RunPending();
    EXPECT_EQ(dialog.CountCommand(1), 0);
    EnableWindow(dialog.Window(), TRUE);
    TapKey(dialog.Window(), 0);
    EXPECT_TRUE(RunUntilCommand(1));
}

TEST_F(SoftKeys, F1IsTheLeftKeyAndNotHelp)
{
    Open(IDM_TWO_KEYS);
    TypeKey(VK_F1);
    EXPECT_TRUE(RunUntilCommand(1));
    TypeKey(VK_F2);
    EXPECT_TRUE(RunUntilCommand(2));
    EXPECT_EQ(dialog.CountCommand(1), 1);
    EXPECT_EQ(dialog.Count(WM_HELP), 0);
}

TEST_F(SoftKeys, F2IsTheRightKey)
{
    Open(IDM_TWO_KEYS);
    TypeKey(VK_F2);
    EXPECT_TRUE(RunUntilCommand(2));
    EXPECT_EQ(dialog.CountCommand(1), 0);
}

TEST_F(SoftKeys, ControlF1IsHelp)
{
    Open(IDM_TWO_KEYS);
    TypeKey(VK_F1, VK_CONTROL);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_HELP) > 0; }));
    EXPECT_EQ(dialog.CountCommand(1), 0);
}

TEST_F(SoftKeys, TheHelpKeyIsHelp)
{
    Open(IDM_TWO_KEYS);
    TypeKey(VK_HELP);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_HELP) > 0; }));
}

TEST_F(SoftKeys, F1IsHelpWhereThereIsNoLeftKey)
{
    Open(0, SHCMBF_EMPTYBAR);
    TypeKey(VK_F1);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_HELP) > 0; }));
}

TEST_F(SoftKeys, F2StaysAKeyWhereThereIsNoRightKey)
{
    Open(IDM_ONE_KEY);
    TypeKey(VK_F2);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_KEYDOWN) > 0; }));
    EXPECT_EQ(dialog.CountCommand(7), 0);
}

TEST_F(SoftKeys, AHeldKeyCountsOnce)
{
    Open(IDM_TWO_KEYS);
    constexpr LPARAM kRepeated = 1 << 30;
    PostMessageW(dialog.Window(), WM_KEYDOWN, VK_F2, 1);
    PostMessageW(dialog.Window(), WM_KEYDOWN, VK_F2, kRepeated | 1);
    EXPECT_TRUE(RunUntilCommand(2));
    dialog.RunPending();
    EXPECT_EQ(dialog.CountCommand(2), 1);
}

TEST_F(SoftKeys, WithTheBarTheKeysGoToo)
{
    Open(IDM_TWO_KEYS);
    DestroyWindow(BarOf(dialog.Window()));
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), nullptr);
    TypeKey(VK_F1);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_HELP) > 0; }));
    EXPECT_EQ(dialog.CountCommand(1), 0);
}

TEST_F(SoftKeys, AltAndTheUnderlinedLetterPressAKey)
{
    Open(IDM_KEY_AND_POPUP);
    TypeKey('D', VK_MENU);
    EXPECT_TRUE(RunUntilCommand(1));
}

TEST_F(SoftKeys, ThePopupOpensAboveTheBarOnItsKeysSide)
{
    Open(IDM_KEY_AND_POPUP);
    AnswerPopupWith({VK_ESCAPE});
    TapKey(dialog.Window(), 1);
    ASSERT_TRUE(RunUntilPopupClosed());
    const RECT bar = ScreenRectOf(BarOf(dialog.Window()));
    EXPECT_LE(popup.bottom, bar.top);
    EXPECT_GE(popup.bottom, bar.top - Scaled(4));
    EXPECT_EQ(popup.right, bar.right);
    EXPECT_GT(popup.left, bar.left);
}

TEST_F(SoftKeys, ThePopupsMessagesReachTheDialog)
{
    Open(IDM_KEY_AND_POPUP);
    AnswerPopupWith({VK_DOWN, VK_DOWN, VK_RETURN});
    TapKey(dialog.Window(), 1);
    EXPECT_TRUE(RunUntilCommand(57344));
    EXPECT_EQ(dialog.Count(WM_INITMENUPOPUP), 1);
    EXPECT_EQ(dialog.Count(WM_ACTIVATE), 0);
}

TEST_F(SoftKeys, WhatTheDialogGraysInThePopupCannotBeChosen)
{
    Open(IDM_KEY_AND_POPUP);
    AnswerPopupWith({VK_DOWN, VK_RETURN, VK_ESCAPE});
    const auto answer = [this](const LoggedMessage& entry, LRESULT&)
    {
        if (entry.Message == WM_INITMENUPOPUP)
            EnableMenuItem(reinterpret_cast<HMENU>(entry.WParam), 32775, MF_GRAYED);
        if (entry.Message == WM_ENTERIDLE && answers < 3)
            PostMessageW(dialog.Window(), WM_KEYDOWN,
                         std::vector<WORD>{VK_DOWN, VK_RETURN, VK_ESCAPE}[answers++], 0);
        return false;
    };
    dialog.SetHandler(answer);
    TapKey(dialog.Window(), 1);
    ASSERT_TRUE(RunUntilPopupClosed());
    dialog.RunPending();
    EXPECT_EQ(dialog.CountCommand(32775), 0);
}

TEST_F(SoftKeys, F2OpensThePopup)
{
    Open(IDM_KEY_AND_POPUP);
    AnswerPopupWith({VK_DOWN, VK_RETURN});
    TypeKey(VK_F2);
    EXPECT_TRUE(RunUntilCommand(32775));
}

TEST_F(SoftKeys, AltAndTheUnderlinedLetterOpenThePopup)
{
    Open(IDM_KEY_AND_POPUP);
    AnswerPopupWith({VK_ESCAPE});
    TypeKey('M', VK_MENU);
    EXPECT_TRUE(RunUntilPopupClosed());
}

TEST_F(SoftKeys, TheKeyLooksPressedWhileItsPopupIsOpen)
{
    Open(IDM_KEY_AND_POPUP);
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    TBBUTTON key{};
    SendMessageW(toolbar, TB_GETBUTTON, 1, reinterpret_cast<LPARAM>(&key));
    const auto id = static_cast<WPARAM>(key.idCommand);
    bool pressed = false;
    dialog.SetHandler(
        [&](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_INITMENUPOPUP)
                pressed = SendMessageW(toolbar, TB_ISBUTTONPRESSED, id, 0) != 0;
            if (entry.Message == WM_ENTERIDLE)
                PostMessageW(dialog.Window(), WM_KEYDOWN, VK_ESCAPE, 0);
            return false;
        });
    TapKey(dialog.Window(), 1);
    ASSERT_TRUE(RunUntilPopupClosed());
    EXPECT_TRUE(pressed);
    dialog.RunPending();
    EXPECT_FALSE(SendMessageW(toolbar, TB_ISBUTTONPRESSED, id, 0));
}

TEST_F(SoftKeys, TheOpenPopupsOwnKeyClosesIt)
{
    Open(IDM_KEY_AND_POPUP);
    const POINT key = KeyOnScreen(dialog.Window(), 1);
    bool clicked = false;
    dialog.SetHandler(
        [&](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_ENTERIDLE && !clicked)
            {
                clicked = true;
                ClickScreen(key);
            }
            return false;
        });
    ClickScreen(key);
    ASSERT_TRUE(RunUntilPopupClosed());
    dialog.RunUntil([end = GetTickCount64() + 100] { return GetTickCount64() > end; });
    EXPECT_EQ(dialog.Count(WM_INITMENUPOPUP), 1);
}

TEST_F(SoftKeys, TheDialogMayGoAwayByItsOwnKey)
{
    Open(IDM_TWO_KEYS);
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_COMMAND)
                DestroyWindow(dialog.Window());
            return entry.Message == WM_COMMAND;
        });
    TapKey(dialog.Window(), 0);
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(dialog.Window()); }));
}

TEST_F(SoftKeys, TheDialogMayGoAwayWhileItsPopupIsOpen)
{
    Open(IDM_KEY_AND_POPUP);
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_ENTERIDLE)
            {
                EndMenu();
                DestroyWindow(dialog.Window());
            }
            return false;
        });
    TapKey(dialog.Window(), 1);
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(dialog.Window()); }));
}

TEST_F(SoftKeys, ADialogOverADialogHasItsOwnKeys)
{
    Open(IDM_TWO_KEYS);
    CTestDialog upper({}, dialog.Window());
    ASSERT_TRUE(upper.CreateBar(IDM_ONE_KEY));
    upper.Open();
    ClickScreen(KeyOnScreen(upper.Window(), 0));
    EXPECT_TRUE(upper.RunUntil([&] { return upper.CountCommand(7) > 0; }));
    EXPECT_EQ(dialog.CountCommand(1), 0);
    TypeKey(VK_F1);
    EXPECT_TRUE(upper.RunUntil([&] { return upper.CountCommand(7) > 1; }));
    EXPECT_EQ(dialog.CountCommand(1), 0);
}
