// Runs a piece of a test in a process of its own: the test's program is started again and takes
// another way in.
#pragma once

#include "platform/Handles.h"

#include <string>

// One more process of this program. It is ended with the object if it still runs.
class CChildProcess
{
public:
    // Starts the program at its entry `entry`, a CHILD_ENTRY, which gets `argument`. Fails the
    // running test when that can't be done.
    CChildProcess(const wchar_t* entry, const std::wstring& argument);
    ~CChildProcess();
    CChildProcess(const CChildProcess&) = delete;
    CChildProcess& operator=(const CChildProcess&) = delete;

    // Waits at most `timeout` milliseconds for its end; false when it still runs.
    bool WaitForEnd(DWORD timeout) const;
    // What the entry returned; STILL_ACTIVE before.
    DWORD ExitCode() const;
    // Ends it at whatever it is doing and waits until it is gone.
    void Kill();

private:
    UniqueKernelHandle m_process;
};

namespace child_process
{

// Remembers an entry; returns true.
bool Register(const wchar_t* name, int (*function)(const std::wstring& argument));

} // namespace child_process

// Defines the entry `name`: a function body that sees `argument` and returns the exit code.
#define CHILD_ENTRY(name)                                                                          \
    int ChildEntry##name(const std::wstring& argument);                                            \
    const bool kIsRegistered##name = child_process::Register(L## #name, ChildEntry##name);         \
    int ChildEntry##name(const std::wstring& argument)
