// Works the module's dialogs like a person, by a script, from within their own message loops: each
// step is taken when the innermost dialog has nothing left to do. That needs no second thread and
// no waiting, and a session that never opens a dialog is over at once.
#pragma once

#include "platform/Win.h"

#include <functional>
#include <string>
#include <vector>

// One action in the dialog that has the given title.
struct ScriptStep
{
    std::wstring title;
    std::function<void(HWND dialog)> act;
};
using Script = std::vector<ScriptStep>;

// Lives from construction to destruction on the thread that calls the exports; one at a time.
class CScriptDriver
{
public:
    CScriptDriver();
    ~CScriptDriver();
    CScriptDriver(const CScriptDriver&) = delete;
    CScriptDriver& operator=(const CScriptDriver&) = delete;

    // From now on dialogs are worked by this script: a step is left out when another dialog than
    // its own is open, a dialog that no step is left for is cancelled, an open menu is closed.
    void Begin(const Script& script);
    // From now on dialogs are left alone.
    void End();

    // Since Begin: whether every step was taken in turn.
    bool TookAllSteps() const { return m_next == m_script.size() && !m_leftOut; }
    // Since Begin: whether a dialog had to be ended by force, or took too long.
    bool WasStuck() const { return m_stuck; }

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK WatchMessage(int code, WPARAM wParam, LPARAM lParam);
    void TakeStep();
    void Cancel(HWND dialog);
    void EndAllByForce();

    Script m_script;
    size_t m_next = 0;
    bool m_isRunning = false;
    bool m_isStepPosted = false;
    bool m_leftOut = false;
    bool m_stuck = false;
    int m_cancels = 0;
    ULONGLONG m_deadline = 0;
    HWND m_window;
    HHOOK m_hook;
};
