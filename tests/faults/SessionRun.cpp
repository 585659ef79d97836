#include "tests/faults/SessionRun.h"

#include "frame/TavException.h"
#include "platform/atl/atlexcept.h"

#include <csignal>
#include <cstdio>
#include <sstream>

namespace
{

// Named when the process doesn't survive it.
FaultPoint g_current;

void NamePointAtAbort(int /*signal*/)
{
    std::ostringstream text;
    text << "the process was ended at " << g_current << "\n";
    std::fputs(text.str().c_str(), stderr);
    std::fflush(stderr);
}

} // namespace

CSessionRun::CSessionRun(const std::string& exportName, SessionEnd end)
    : m_session(MakeSession(exportName)), m_end(end),
      m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                              nullptr, nullptr, nullptr, nullptr)),
      m_injector(m_module.Handle())
{
    std::signal(SIGABRT, NamePointAtAbort);
    SetForegroundWindow(m_owner);
}

CSessionRun::~CSessionRun()
{
    DestroyWindow(m_owner);
}

SessionOutcome CSessionRun::Call(const FaultPoint& point)
{
    Rest();
    SessionOutcome outcome;
    g_current = point;
    SetActiveWindow(m_owner);
    m_driver.Begin(m_session->Steps(m_end));
    m_injector.Arm(point);
    try
    {
        outcome.result = m_session->Call(m_module, m_owner);
        outcome.lastError = GetLastError();
    }
    catch (const CTavException& exception)
    {
        outcome.code = exception.Code();
    }
    catch (const CAtlException& exception)
    {
        outcome.code = exception.m_hr;
    }
    catch (...)
    {
        // Neither a result nor a code: what must not leave an export.
    }
    m_injector.Disarm();
    outcome.tookAllSteps = m_driver.TookAllSteps();
    m_driver.End();
    return outcome;
}

void CSessionRun::Rest()
{
    if (!m_injector.Writes().empty())
        m_snapshot.Restore();
    m_injector.Arm({});
    m_injector.Disarm();
}
