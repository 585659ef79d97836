// One complete session with each of the module's exports, over sample data of its own.
#pragma once

#include "tests/faults/ScriptDriver.h"
#include "tests/support/Module.h"

#include <memory>
#include <string>

// How the session ends.
enum class SessionEnd : UINT
{
    Done = IDOK,
    Cancel = IDCANCEL,
};

// The data live as long as the object; one at a time.
class CSession
{
public:
    CSession() = default;
    virtual ~CSession() = default;
    CSession(const CSession&) = delete;
    CSession& operator=(const CSession&) = delete;

    // Calls the export over `owner`.
    virtual BOOL Call(const CModule& module, HWND owner) = 0;
    // What a person does in it.
    virtual Script Steps(SessionEnd end) const = 0;
    // Whether it may write to that place in the registry: a key, or a key, "|" and a value's name.
    virtual bool IsOwnPlace(const std::wstring& place) const = 0;
    // Whether opening the dialog deletes keys with malformed values.
    virtual bool CleansUp() const { return false; }
    // Whether a call that was not confirmed has left what the host handed over as it was.
    virtual bool IsHostUntouched() const { return true; }
};

// A session with the export of that name.
std::unique_ptr<CSession> MakeSession(const std::string& exportName);
