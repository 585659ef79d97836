#include "tests/support/ForeignWindow.h"

#include "tests/support/Wait.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kComeForward = WM_APP + 1;
constexpr UINT kGo = WM_APP + 2;

} // namespace

CForeignWindow::CForeignWindow()
    : m_ready(CreateEventW(nullptr, TRUE, FALSE, nullptr)), m_thread([this] { Run(); })
{
    WaitForSingleObject(m_ready, INFINITE);
    EXPECT_NE(nullptr, m_window);
}

CForeignWindow::~CForeignWindow()
{
    PostMessageW(m_window, kGo, 0, 0);
    m_thread.join();
    CloseHandle(m_ready);
}

void CForeignWindow::Activate()
{
    m_wasInFront = false;
    PostMessageW(m_window, kComeForward, 0, 0);
    EXPECT_TRUE(WaitUntil([this] { return m_wasInFront.load(); }));
}

void CForeignWindow::Run()
{
    m_window = CreateWindowExW(0, L"Static", L"foreign", WS_POPUP | WS_VISIBLE, 0, 0, 40, 40,
                               nullptr, nullptr, nullptr, nullptr);
    SetEvent(m_ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
    {
        if (message.message == kComeForward)
            m_wasInFront = SetForegroundWindow(m_window) != FALSE;
        if (message.message == kGo)
            break;
        DispatchMessageW(&message);
    }
    DestroyWindow(m_window);
}
