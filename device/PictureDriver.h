// Takes a picture of a dialog: works the dialog from a thread of its own, with real input, until
// the wanted view is on the screen, saves it and closes everything again.
#pragma once

#include "platform/Win.h"

#include <string>
#include <thread>

// The name of the dialog that a view belongs to; null when it is no view of a dialog. The views, by
// the names that scripts/pictures.sh uses: "customize-home", "customize-home-programs",
// "customize-home-limit" (its message), "customize-now", "install-wizard" and those of MenuViews.h
// and CityViews.h.
const wchar_t* DialogOfView(const std::wstring& view);

class CPictureDriver
{
public:
    // Waits, on its own thread, for a dialog of the user-interface thread `threadId`.
    CPictureDriver(DWORD threadId, const std::wstring& view, const std::wstring& file);
    // Waits for the thread.
    ~CPictureDriver();
    CPictureDriver(const CPictureDriver&) = delete;
    CPictureDriver& operator=(const CPictureDriver&) = delete;

    // Waits until the picture is done; false when a step failed.
    bool Finish();
    // After Finish: which step failed; empty when none did.
    const std::wstring& Problem() const { return m_problem; }

private:
    void Run();
    // Each gives what went wrong, an empty text when nothing did.
    std::wstring TakePicture();
    std::wstring BringUpView();
    std::wstring BringUpHomeView();
    std::wstring PinTooMany(HWND tree);
    void CloseAll();

    DWORD m_uiThread;
    std::wstring m_view;
    std::wstring m_file;
    HWND m_dialog = nullptr;
    std::wstring m_problem;
    std::thread m_thread;
};
