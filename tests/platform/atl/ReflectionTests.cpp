// Notifications that a parent sends back to the control that they come from.
#include <atlwin.h>

#include "platform/Handles.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kTaken = 101;
constexpr UINT kPassedOn = 102;
constexpr UINT kUnknown = 103;
constexpr LRESULT kAnswer = 0x1234567;

class CReflectingParent : public CWindowImpl<CReflectingParent>
{
public:
    BEGIN_MSG_MAP(CReflectingParent)
        REFLECT_NOTIFICATIONS()
    END_MSG_MAP()
};

class CReflectedControl : public CWindowImpl<CReflectedControl>
{
public:
    BEGIN_MSG_MAP(CReflectedControl)
        REFLECTED_NOTIFY_CODE_HANDLER(kTaken, OnTaken)
        REFLECTED_NOTIFY_CODE_HANDLER(kPassedOn, OnPassedOn)
        REFLECTED_NOTIFY_CODE_HANDLER(kPassedOn, OnTaken)
    END_MSG_MAP()

    int takenFrom = 0;
    int taken = 0;
    int passedOn = 0;

private:
    LRESULT OnTaken(int id, NMHDR* header, BOOL& handled)
    {
        EXPECT_TRUE(handled);
        EXPECT_EQ(m_hWnd, header->hwndFrom);
        takenFrom = id;
        ++taken;
        return kAnswer;
    }
    LRESULT OnPassedOn(int /*id*/, NMHDR* /*header*/, BOOL& handled)
    {
        handled = FALSE;
        ++passedOn;
        return 1;
    }
};

HWND CreateStatic(HWND parent)
{
    return CreateWindowExW(0, L"Static", L"text", parent ? WS_CHILD : WS_POPUP, 0, 0, 10, 10,
                           parent, nullptr, nullptr, nullptr);
}

class Reflection : public testing::Test
{
protected:
    Reflection()
    {
        parent.SubclassWindow(window.get());
        control.SubclassWindow(CreateStatic(window.get()));
    }

    LRESULT Notify(UINT code, HWND from)
    {
        const NMHDR header = {from, 7, code};
        return SendMessageW(window.get(), WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header));
    }

    CReflectingParent parent;
    CReflectedControl control;
    UniqueWindow window{CreateStatic(nullptr)};
};

} // namespace

TEST_F(Reflection, TheControlTakesItsNotificationAndItsAnswerIsTheParents)
{
    EXPECT_EQ(kAnswer, Notify(kTaken, control.m_hWnd));
    EXPECT_EQ(1, control.taken);
    EXPECT_EQ(7, control.takenFrom);
}

TEST_F(Reflection, AHandlerMayPassItOnToTheNext)
{
    EXPECT_EQ(kAnswer, Notify(kPassedOn, control.m_hWnd));
    EXPECT_EQ(1, control.passedOn);
    EXPECT_EQ(1, control.taken);
}

TEST_F(Reflection, WhatTheControlDoesNotKnowIsAnsweredWithZero)
{
    EXPECT_EQ(0, Notify(kUnknown, control.m_hWnd));
    EXPECT_EQ(0, control.taken);
}

TEST_F(Reflection, ANotificationGoesToNoOtherControl)
{
    CReflectedControl other;
    other.SubclassWindow(CreateStatic(window.get()));
    Notify(kTaken, other.m_hWnd);
    EXPECT_EQ(0, control.taken);
    EXPECT_EQ(1, other.taken);
}

TEST_F(Reflection, AnotherWindowsMessageIsNotItsNotification)
{
    const NMHDR header = {control.m_hWnd, 7, kTaken};
    SendMessageW(control, WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(0, control.taken);
}

TEST_F(Reflection, OtherMessagesStayWithTheParent)
{
    EXPECT_EQ(4, SendMessageW(window.get(), WM_GETTEXTLENGTH, 0, 0));
    BOOL handled = TRUE;
    EXPECT_EQ(0, parent.ReflectNotifications(WM_COMMAND, 7, 0, handled));
    EXPECT_FALSE(handled);
}
