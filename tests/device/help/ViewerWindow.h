// The help viewer's window in the test's own thread, worked by messages.
#pragma once

#include <gtest/gtest.h>

#include "device/help/HelpWindow.h"
#include "device/help/PageFile.h"
#include "tests/device/help/HelpFolder.h"

class ViewerWindow : public testing::Test
{
protected:
    ViewerWindow();

    // Shows the test's page at a topic.
    void Open(const std::string& html, const std::wstring& topic = L"");
    // Shows the book at a topic.
    void OpenBook(const std::wstring& topic = L"Main_Contents");

    HWND ViewWindow() const { return m_window.View().Window(); }
    void Press(WPARAM key) const { SendMessageW(ViewWindow(), WM_KEYDOWN, key, 0); }
    // Taps a point of the page's part of the window.
    void Tap(POINT point) const;
    // The point in the middle of a link's first piece; it must be in sight.
    POINT MiddleOf(int link) const;
    // The first line in sight, and the link with the focus.
    std::wstring FirstLine() const;
    std::wstring FocusedText() const;
    // The soft keys' texts and commands.
    std::wstring KeyText(int key) const;
    void PressSoftKey(int key) const;
    // Handles what is waiting; true when the thread was told to end its loop.
    bool HandleMessages() const;

    CHelpFolder m_folder;
    help::CHelpWindow m_window;

private:
    int m_pages = 0;
};
