// Repeats a session with one point of failure after the other and checks what comes of it.
#pragma once

#include "tests/faults/SessionRun.h"

#include <string>
#include <vector>

// One session that can be repeated. Failures are reported to the running test.
class CSweep
{
public:
    CSweep(const std::string& exportName, SessionEnd end);

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
    void CheckPoint(const FaultPoint& point);
    void CheckOutcome(const FaultPoint& point, const SessionOutcome& outcome) const;
    void CheckWrites(const FaultPoint& point) const;
    void CheckSurroundings() const;
    void CheckLeaks(const std::vector<FaultPoint>& points);
    // Runs the points once more; how much more is held after them, in words; empty for nothing.
    std::string Growth(const std::vector<FaultPoint>& points);

    CSessionRun m_run;
    CallCounts m_goodCalls = {};
    RegistryWrites m_goodWrites;
    SessionOutcome m_goodOutcome;
};
