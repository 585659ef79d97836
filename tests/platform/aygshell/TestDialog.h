// A dialog for the shell tests: made from a template in memory, modeless, run by the test itself,
// and keeping a log of what it was sent.
#pragma once

#include "platform/Win.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "aygshell.h"

// One control of the dialog's template, in dialog units.
struct TestControl
{
    const wchar_t* ClassName;
    DWORD Style;
    WORD Id;
    short X;
    short Y;
    short Width;
    short Height;
};

struct LoggedMessage
{
    UINT Message;
    WPARAM WParam;
    LPARAM LParam;
    // The code, for WM_NOTIFY.
    UINT Code;
};

class CTestDialog
{
public:
    // Looks at a message before the dialog's default handling; returns whether the message is done
    // with, and puts its result where the third argument points.
    using Handler = std::function<bool(const LoggedMessage&, LRESULT&)>;

    // Creates the dialog, 100 x 100 dialog units with a caption and the text "Test dialog", hidden.
    explicit CTestDialog(const std::vector<TestControl>& controls = {}, HWND owner = nullptr);
    ~CTestDialog();
    CTestDialog(const CTestDialog&) = delete;
    CTestDialog& operator=(const CTestDialog&) = delete;

    HWND Window() const { return m_window; }
    HWND Control(int id) const { return GetDlgItem(m_window, id); }

    // Full screen by SHInitDialog, visible, active, and with its queue empty.
    void Open();
    void Destroy();

    // The two calls, with the usual arguments; what they return.
    BOOL InitDialog(DWORD flags = SHIDIF_SIZEDLGFULLSCREEN);
    BOOL CreateBar(UINT menu, DWORD flags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);

    // Handles messages like a modal loop does until the condition holds; false after 5 seconds.
    bool RunUntil(const std::function<bool()>& condition);
    // Handles all messages that wait now.
    void RunPending();

    // Puts the pointer at a place of the screen and waits until it stays there: the screen reports
    // earlier moves late.
    void ParkPointer(POINT screen);

    void SetHandler(Handler handler) { m_handler = std::move(handler); }
    void ClearLog() { m_log.clear(); }
    const std::vector<LoggedMessage>& Log() const { return m_log; }
    int Count(UINT message) const;
    int CountCommand(WORD id) const;
    int CountNotify(UINT code) const;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
    Handler m_handler;
    std::vector<LoggedMessage> m_log;
};

// The bar around the toolbar of a window.
HWND BarOf(HWND owner);
RECT ScreenRectOf(HWND window);
// Logical pixels in device pixels.
int Scaled(int logical);
RECT WorkArea();

// A press and release at a point of a window, posted.
void PostTap(HWND window, POINT point);
// A press and release of the left mouse button on the screen, by synthetic input.
void ClickScreen(POINT screen);
// A key pressed and released by synthetic input, while `modifier` (0: none) is down.
void TypeKey(WORD key, WORD modifier = 0);
LPARAM PointParam(POINT point);
POINT CentreOf(const RECT& rect);

// For the expectations of GoogleTest, which prints what differs.
bool operator==(const RECT& left, const RECT& right);
std::ostream& operator<<(std::ostream& stream, const RECT& rect);
