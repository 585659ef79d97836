// The stand-in device as a person starts it: the shell's program in a process of its own, found and
// worked through its windows alone.
#pragma once

#include "platform/Handles.h"

#include <string>

class CShellRun
{
public:
    // Starts the program that lies beside the test's own; `arguments` as on its command line. Fails
    // the running test when that can't be done.
    explicit CShellRun(const std::wstring& arguments);
    // Ends the shell if it still runs.
    ~CShellRun();
    CShellRun(const CShellRun&) = delete;
    CShellRun& operator=(const CShellRun&) = delete;

    // Waits for a visible window of the shell with this class and text (any, when empty); null and
    // a failed test when the time is up.
    HWND WaitFor(const std::wstring& className, const std::wstring& text) const;
    // Likewise for a dialog that `owner` opened.
    HWND WaitForDialogOver(HWND owner) const;
    // Waits at most 20 seconds for the program's end.
    bool WaitForEnd() const;

private:
    HWND Find(const std::wstring& className, const std::wstring& text, HWND owner) const;

    UniqueKernelHandle m_process;
    DWORD m_id = 0;
};
