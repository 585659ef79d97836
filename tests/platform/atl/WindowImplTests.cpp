// Subclassed windows as objects: whose messages they get, and how they let go of them.
#include "tests/platform/atl/ProbeDialog.h"

#include "platform/Handles.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace
{

constexpr UINT kTaken = WM_APP + 20;
constexpr UINT kFailing = WM_APP + 21;
constexpr UINT kDefault = WM_APP + 22;

class CListener : public ATL::CWindowImpl<CListener>
{
public:
    int finalMessages = 0;
    HWND finalWindow = nullptr;

    BEGIN_MSG_MAP(CListener)
        MESSAGE_HANDLER(kTaken, OnTaken)
        MESSAGE_HANDLER(kFailing, OnFailing)
        MESSAGE_HANDLER(kDefault, OnDefault)
    END_MSG_MAP()

    void OnFinalMessage(HWND window) override
    {
        ++finalMessages;
        finalWindow = window;
    }

private:
    LRESULT OnTaken(UINT /*message*/, WPARAM wParam, LPARAM lParam, BOOL& /*handled*/)
    {
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT OnFailing(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        throw std::runtime_error("in the control");
    }
    LRESULT OnDefault(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        return DefWindowProc(WM_GETTEXTLENGTH, 0, 0);
    }
};

HWND CreateStatic(HWND parent = nullptr)
{
    return CreateWindowExW(0, L"Static", L"text", parent ? WS_CHILD : WS_POPUP, 0, 0, 10, 10,
                           parent, nullptr, nullptr, nullptr);
}

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

class CEmptyAllocator : public ATL::CThunkAllocator
{
public:
    void* Allocate(void* /*procedure*/, void* /*self*/) override { return nullptr; }
    void Redirect(void* /*code*/, void* /*procedure*/, void* /*self*/) override {}
    void Free(void* /*code*/) override {}
};

class WindowImpl : public testing::Test
{
protected:
    UniqueWindow window{CreateStatic()};
    WNDPROC own = ProcedureOf(window.get());
    CListener listener;
};

} // namespace

TEST_F(WindowImpl, TakesTheMessagesOfItsMap)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    EXPECT_EQ(window.get(), listener.m_hWnd);
    EXPECT_EQ(42, SendMessageW(window.get(), kTaken, 40, 2));
}

TEST_F(WindowImpl, LeavesOtherMessagesToTheWindow)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    EXPECT_EQ(4, SendMessageW(window.get(), WM_GETTEXTLENGTH, 0, 0));
}

TEST_F(WindowImpl, CanUseTheWindowsOwnBehaviour)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    EXPECT_EQ(4, SendMessageW(window.get(), kDefault, 0, 0));
}

TEST_F(WindowImpl, UnsubclassingBringsTheOwnProcedureBack)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    EXPECT_NE(own, ProcedureOf(window.get()));
    EXPECT_EQ(window.get(), listener.UnsubclassWindow());
    EXPECT_EQ(own, ProcedureOf(window.get()));
    EXPECT_EQ(nullptr, listener.m_hWnd);
    EXPECT_EQ(nullptr, listener.UnsubclassWindow());
    EXPECT_EQ(0, SendMessageW(window.get(), kTaken, 40, 2));
}

TEST_F(WindowImpl, CanTakeAnotherWindowAfterwards)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    window.reset();
    window.reset(CreateStatic());
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    EXPECT_EQ(42, SendMessageW(window.get(), kTaken, 40, 2));
}

TEST_F(WindowImpl, IsNotUnsubclassedUnderneathAnother)
{
    CListener outer;
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    ASSERT_TRUE(outer.SubclassWindow(window.get()));
    EXPECT_EQ(nullptr, listener.UnsubclassWindow());
    EXPECT_EQ(window.get(), listener.m_hWnd);
    EXPECT_EQ(window.get(), listener.UnsubclassWindow(TRUE));
    EXPECT_EQ(own, ProcedureOf(window.get()));
    EXPECT_EQ(window.get(), outer.Detach());
}

TEST_F(WindowImpl, ForgetsAWindowThatIsDestroyed)
{
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    const HWND old = window.get();
    window.reset();
    EXPECT_EQ(nullptr, listener.m_hWnd);
    EXPECT_EQ(1, listener.finalMessages);
    EXPECT_EQ(old, listener.finalWindow);
}

TEST_F(WindowImpl, TwoObjectsForgetADestroyedWindowBoth)
{
    CListener outer;
    ASSERT_TRUE(listener.SubclassWindow(window.get()));
    ASSERT_TRUE(outer.SubclassWindow(window.get()));
    window.reset();
    EXPECT_EQ(1, outer.finalMessages);
    EXPECT_EQ(1, listener.finalMessages);
    EXPECT_EQ(nullptr, outer.m_hWnd);
    EXPECT_EQ(nullptr, listener.m_hWnd);
}

TEST_F(WindowImpl, AWindowOutlivesItsObject)
{
    {
        CListener brief;
        ASSERT_TRUE(brief.SubclassWindow(window.get()));
    }
    EXPECT_EQ(own, ProcedureOf(window.get()));
    EXPECT_EQ(4, SendMessageW(window.get(), WM_GETTEXTLENGTH, 0, 0));
}

TEST_F(WindowImpl, WhatIsNoWindowIsNotSubclassed)
{
    EXPECT_FALSE(listener.SubclassWindow(nullptr));
    const HWND gone = window.get();
    window.reset();
    EXPECT_FALSE(listener.SubclassWindow(gone));
    EXPECT_EQ(nullptr, listener.m_hWnd);
}

TEST_F(WindowImpl, WithoutAThunkIsNotSubclassed)
{
    CEmptyAllocator empty;
    ATL::SetThunkAllocator(&empty);
    EXPECT_FALSE(listener.SubclassWindow(window.get()));
    EXPECT_EQ(static_cast<DWORD>(ERROR_OUTOFMEMORY), GetLastError());
    EXPECT_EQ(own, ProcedureOf(window.get()));
    ATL::SetThunkAllocator(nullptr);
}

TEST_F(WindowImpl, AnExceptionEndsTheDialogAndLeavesItsCall)
{
    _AtlBaseModule.SetResourceInstance(GetModuleHandleW(nullptr));
    CProbe dialog;
    dialog.onInit = [&](HWND created)
    {
        ASSERT_TRUE(listener.SubclassWindow(CreateStatic(created)));
        PostMessageW(created, kMessageAct, 0, 0);
    };
    LRESULT answer = -1;
    dialog.onAct = [&](HWND) { answer = SendMessageW(listener, kFailing, 0, 0); };
    EXPECT_THROW(dialog.DoModal(nullptr), std::runtime_error);
    EXPECT_EQ(0, answer);
    EXPECT_EQ(1, listener.finalMessages);
}
