#include "device/WindowThread.h"

CWindowThread::CWindowThread(Maker make) : m_ready(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    m_thread = std::thread([this, make = std::move(make)] { Run(make); });
    WaitForSingleObject(m_ready.get(), INFINITE);
}

CWindowThread::~CWindowThread()
{
    if (m_window)
        PostMessageW(m_window, WM_CLOSE, 0, 0);
    m_thread.join();
}

void CWindowThread::Run(const Maker& make)
{
    const std::unique_ptr<CHostWindow> window = make();
    m_window = window->Window();
    const bool created = m_window != nullptr;
    SetEvent(m_ready.get());
    MSG message;
    while (created && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
}
