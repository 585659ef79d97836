#include "tests/support/ImageProcess.h"

#include <gtest/gtest.h>

namespace
{

constexpr const wchar_t* kClassName = L"TavMenu_ProcessWindow";
constexpr DWORD kDeadline = 60000;

} // namespace

uint32_t ImageProcessRequest::Field(size_t offset) const
{
    uint32_t value = 0;
    for (size_t i = 4; i-- > 0;)
        value = value << 8 | bytes.at(offset + i);
    return value;
}

std::wstring ImageProcessRequest::TextAt(size_t offset) const
{
    std::wstring text;
    for (size_t i = offset; bytes.at(i) != 0 || bytes.at(i + 1) != 0; i += 2)
        text += static_cast<wchar_t>(bytes.at(i) | bytes.at(i + 1) << 8);
    return text;
}

HDC ImageProcessRequest::Dc() const
{
    return reinterpret_cast<HDC>(static_cast<INT_PTR>(static_cast<int32_t>(Field(528))));
}

RECT ImageProcessRequest::Rect() const
{
    return {static_cast<LONG>(Field(532)), static_cast<LONG>(Field(536)),
            static_cast<LONG>(Field(540)), static_cast<LONG>(Field(544))};
}

CImageProcess::CImageProcess(std::function<LRESULT(const ImageProcessRequest&)> answer)
    : m_answer(std::move(answer)), m_ready(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_released(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{
    m_thread = std::thread([this] { Run(); });
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(m_ready.get(), kDeadline));
    EXPECT_NE(nullptr, m_window.load());
}

CImageProcess::~CImageProcess()
{
    SetEvent(m_released.get());
    if (m_window)
        PostMessageW(m_window, WM_CLOSE, 0, 0);
    m_thread.join();
}

void CImageProcess::Behave(ImageProcessManner manner)
{
    m_manner = manner;
}

std::vector<ImageProcessRequest> CImageProcess::Requests() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_requests;
}

void CImageProcess::ForgetRequests()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_requests = std::vector<ImageProcessRequest>();
}

LRESULT CImageProcess::Take(HWND window, WPARAM wParam, const COPYDATASTRUCT& data)
{
    ImageProcessRequest request = {data.dwData, wParam, {}};
    const auto* const bytes = static_cast<const uint8_t*>(data.lpData);
    request.bytes.assign(bytes, bytes + data.cbData);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_requests.push_back(request);
    }
    switch (m_manner)
    {
    case ImageProcessManner::Hang:
        WaitForSingleObject(m_released.get(), kDeadline);
        return 0;
    case ImageProcessManner::Die:
        m_window = nullptr;
        DestroyWindow(window);
        // Like a process that ends: whoever waits for an answer gets none.
        ExitThread(0);
    default:
        return m_answer(request);
    }
}

LRESULT CALLBACK CImageProcess::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const self = reinterpret_cast<CImageProcess*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_COPYDATA && self)
        return self->Take(window, wParam, *reinterpret_cast<const COPYDATASTRUCT*>(lParam));
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, wParam, lParam);
}

void CImageProcess::Run()
{
    WNDCLASSW type = {};
    type.lpfnWndProc = Procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = kClassName;
    RegisterClassW(&type);
    const HWND window = CreateWindowExW(0, kClassName, L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                        type.hInstance, nullptr);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_window = window;
    SetEvent(m_ready.get());
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
}
