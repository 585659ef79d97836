// Stands in for the launcher-menu process: a window of its class on a thread of its own in the
// test's process, where the dialogs' device contexts are good. Records every request and answers as
// told.
#pragma once

#include "platform/Handles.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

// One WM_COPYDATA as it arrived.
struct ImageProcessRequest
{
    ULONG_PTR code;
    WPARAM wParam;
    std::vector<uint8_t> bytes;

    // The 32-bit little-endian field at a byte offset.
    uint32_t Field(size_t offset) const;
    // The zero-terminated text at a byte offset.
    std::wstring TextAt(size_t offset) const;
    // The fields of a request to draw.
    HDC Dc() const;
    RECT Rect() const;
};

// What the window does with a request.
enum class ImageProcessManner
{
    Answer, // calls the test's function
    Hang,   // keeps the sender waiting until the object is told otherwise or goes
    Die,    // destroys the window and ends the thread without an answer
};

// Lives from construction to destruction; one at a time.
class CImageProcess
{
public:
    // `answer` is called on the window's thread for each request; without one it answers 0.
    explicit CImageProcess(std::function<LRESULT(const ImageProcessRequest&)> answer =
                               [](const ImageProcessRequest&) { return LRESULT{0}; });
    ~CImageProcess();
    CImageProcess(const CImageProcess&) = delete;
    CImageProcess& operator=(const CImageProcess&) = delete;

    // For the requests to come.
    void Behave(ImageProcessManner manner);
    // All requests so far.
    std::vector<ImageProcessRequest> Requests() const;
    // Gives their memory back: for tests that count it.
    void ForgetRequests();

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Run();
    LRESULT Take(HWND window, WPARAM wParam, const COPYDATASTRUCT& data);

    std::function<LRESULT(const ImageProcessRequest&)> m_answer;
    std::atomic<ImageProcessManner> m_manner{ImageProcessManner::Answer};
    mutable std::mutex m_mutex;
    std::vector<ImageProcessRequest> m_requests;
    UniqueKernelHandle m_ready;
    // Set when a request that hangs may go on.
    UniqueKernelHandle m_released;
    std::atomic<HWND> m_window{nullptr};
    std::thread m_thread;
};
