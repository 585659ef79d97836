// Repeats a session with one point of failure after the other and checks what comes of it.
#pragma once

#include "tests/faults/FaultInjector.h"
#include "tests/faults/RegistrySnapshot.h"
#include "tests/faults/Session.h"

#include <optional>
#include <string>
#include <vector>

// What came out of one call of an export.
struct SessionOutcome
{
    // What it returned; nothing when it threw.
    std::optional<BOOL> result;
    // The code that the exception carried, when it was one that may leave an export.
    std::optional<HRESULT> code;
    bool tookAllSteps = false;
};

// One session that can be repeated. Failures are reported to the running test.
class CSweep
{
public:
    CSweep(const std::string& exportName, SessionEnd end);
    ~CSweep();
    CSweep(const CSweep&) = delete;
    CSweep& operator=(const CSweep&) = delete;

    // The session without any failure: how often each function is called, what is written.
    const CallCounts& GoodCalls() const { return m_goodCalls; }
    const RegistryWrites& GoodWrites() const { return m_goodWrites; }
    const SessionOutcome& GoodOutcome() const { return m_goodOutcome; }

    // All points of a kind; of every function at most that many, spread evenly.
    std::vector<FaultPoint> Points(FaultKind kind, bool forEver, unsigned mostPerFunction) const;

    // Runs the session with each of the points failing, one after the other, and checks each
    // outcome; then checks that nothing is left behind of them.
    void Run(const std::vector<FaultPoint>& points);

private:
    SessionOutcome Call(const FaultPoint& point);
    void CheckPoint(const FaultPoint& point);
    void CheckOutcome(const FaultPoint& point, const SessionOutcome& outcome) const;
    void CheckWrites(const FaultPoint& point) const;
    void CheckSurroundings() const;
    void CheckLeaks(const std::vector<FaultPoint>& points);
    // Runs the points once more; how much more is held after them, in words; empty for nothing.
    std::string Growth(const std::vector<FaultPoint>& points);
    FaultPoint FindLeak(std::vector<FaultPoint> points);

    CModule m_module;
    std::unique_ptr<CSession> m_session;
    CRegistrySnapshot m_snapshot;
    SessionEnd m_end;
    HWND m_owner;
    CScriptDriver m_driver;
    CFaultInjector m_injector;
    CallCounts m_goodCalls = {};
    RegistryWrites m_goodWrites;
    SessionOutcome m_goodOutcome;
};
