// Runs a session with the freshly loaded module, again and again, with a point of failure.
#pragma once

#include "tests/faults/FaultInjector.h"
#include "tests/faults/RegistrySnapshot.h"
#include "tests/faults/Session.h"

#include <memory>
#include <optional>
#include <string>

// What came out of one call of an export.
struct SessionOutcome
{
    // What it returned; nothing when it threw.
    std::optional<BOOL> result;
    // The code that the exception carried, when it was one that may leave an export.
    std::optional<HRESULT> code;
    // The last error behind a call that returned.
    DWORD lastError = 0;
    bool tookAllSteps = false;
};

// Everything that a session needs around it: sample data, module, owner, driver, injector.
class CSessionRun
{
public:
    CSessionRun(const std::string& exportName, SessionEnd end);
    ~CSessionRun();
    CSessionRun(const CSessionRun&) = delete;
    CSessionRun& operator=(const CSessionRun&) = delete;

    // Runs it once from the same beginning, with that point failing.
    SessionOutcome Call(const FaultPoint& point);

    // Forgets the last call and undoes what it wrote, so that resources can be counted.
    void Rest();

    // Of the last call.
    const CFaultInjector& Injector() const { return m_injector; }
    const CScriptDriver& Driver() const { return m_driver; }

    const CSession& Session() const { return *m_session; }
    HMODULE Module() const { return m_module.Handle(); }
    HWND Owner() const { return m_owner; }

private:
    CModule m_module;
    std::unique_ptr<CSession> m_session;
    CRegistrySnapshot m_snapshot;
    SessionEnd m_end;
    HWND m_owner;
    CScriptDriver m_driver;
    CFaultInjector m_injector;
};
