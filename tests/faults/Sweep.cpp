#include "tests/faults/Sweep.h"

#include "frame/TavException.h"
#include "platform/atl/atlexcept.h"
#include "tests/support/DialogRun.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/LeakCounter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <new>
#include <sstream>

namespace
{

// Sessions whose first failures make what stays from then on, such as the runtime's own records.
constexpr size_t kWarmUp = 12;

// Named when the process doesn't survive it.
FaultPoint g_current;

void NamePointAtAbort(int /*signal*/)
{
    std::ostringstream text;
    text << "the process was ended at " << g_current << "\n";
    std::fputs(text.str().c_str(), stderr);
    std::fflush(stderr);
}

BOOL CALLBACK CountDialog(HWND window, LPARAM count)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    *reinterpret_cast<int*>(count) += lstrcmpW(name, L"#32770") == 0;
    return TRUE;
}

int DialogsOfThisThread()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountDialog, reinterpret_cast<LPARAM>(&count));
    return count;
}

bool IsStatedCode(HRESULT code, const FaultPoint& point)
{
    return code == kTavOutOfMemory || code == kTavBroken || code == kTavInvalidArgument ||
           code == HResultOfError(point.Function().error);
}

std::string Narrow(const std::wstring& text)
{
    return std::string(text.begin(), text.end());
}

// What a write is about, without the data.
std::wstring TargetOf(const std::wstring& write)
{
    return write.substr(0, write.find(L'='));
}

bool IsPrefix(const RegistryWrites& part, const RegistryWrites& whole)
{
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

// By how much a count has grown, in words.
std::string Difference(const ResourceCounts& before, const ResourceCounts& after)
{
    std::ostringstream text;
    const auto compare = [&](const char* what, auto first, auto second)
    {
        if (second > first)
            text << " +" << second - first << " " << what;
    };
    compare("GDI objects", before.gdiObjects, after.gdiObjects);
    compare("windows", before.windows, after.windows);
    compare("menus", before.menus, after.menus);
    compare("kernel handles", before.kernelHandles, after.kernelHandles);
    compare("bytes", before.heapBytes, after.heapBytes);
    return text.str();
}

} // namespace

CSweep::CSweep(const std::string& exportName, SessionEnd end)
    : m_session(MakeSession(exportName)), m_end(end),
      m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                              nullptr, nullptr, nullptr, nullptr)),
      m_injector(m_module.Handle())
{
    std::signal(SIGABRT, NamePointAtAbort);
    SetForegroundWindow(m_owner);
    m_goodOutcome = Call({});
    m_goodOutcome = Call({});
    m_goodCalls = m_injector.Calls();
    m_goodWrites = m_injector.Writes();
    m_snapshot.Restore();
    CheckSurroundings();
}

CSweep::~CSweep()
{
    DestroyWindow(m_owner);
}

SessionOutcome CSweep::Call(const FaultPoint& point)
{
    if (!m_injector.Writes().empty())
        m_snapshot.Restore();
    SessionOutcome outcome;
    g_current = point;
    SetActiveWindow(m_owner);
    m_driver.Begin(m_session->Steps(m_end));
    m_injector.Arm(point);
    try
    {
        outcome.result = m_session->Call(m_module, m_owner);
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
    }
    m_injector.Disarm();
    outcome.tookAllSteps = m_driver.TookAllSteps();
    m_driver.End();
    return outcome;
}

std::vector<FaultPoint> CSweep::Points(FaultKind kind, bool forEver, unsigned mostPerFunction) const
{
    std::vector<FaultPoint> points;
    for (size_t function = 0; function < kFaultFunctionCount; ++function)
    {
        if (kFaultFunctions[function].kind != kind)
            continue;
        const unsigned calls = m_goodCalls[function];
        const unsigned taken = std::min(calls, mostPerFunction);
        for (unsigned i = 0; i < taken; ++i)
        {
            const unsigned call = taken < 2 ? 1 : 1 + i * (calls - 1) / (taken - 1);
            points.push_back({function, call, forEver});
        }
    }
    return points;
}

void CSweep::Run(const std::vector<FaultPoint>& points)
{
    for (size_t i = 0; i < std::min(points.size(), kWarmUp); ++i)
        Call(points[i * points.size() / kWarmUp % points.size()]);
    const ResourceCounts before = CountResources();
    for (const FaultPoint& point : points)
        CheckPoint(point);
    if (!Difference(before, CountResources()).empty())
        CheckLeaks(points);
}

void CSweep::CheckPoint(const FaultPoint& point)
{
    if (getenv("TAV_TRACE"))
    {
        std::ostringstream text;
        text << point << "\n";
        std::fputs(text.str().c_str(), stderr);
        std::fflush(stderr);
    }
    const CFaultCounter faults(m_module.Handle());
    const SessionOutcome outcome = Call(point);
    std::ostringstream where;
    where << point << ", from" << m_injector.TraceOfFailure();
    const testing::ScopedTrace trace(__FILE__, __LINE__, where.str());
    CheckOutcome(point, outcome);
    CheckWrites(point);
    CheckSurroundings();
    EXPECT_EQ(0, faults.Count()) << "the module touched memory that it must not";
    EXPECT_FALSE(m_driver.WasStuck()) << "the session did not end by itself";
}

void CSweep::CheckOutcome(const FaultPoint& point, const SessionOutcome& outcome) const
{
    if (outcome.result)
        EXPECT_TRUE(*outcome.result == TRUE || *outcome.result == FALSE);
    else if (!outcome.code)
        ADD_FAILURE() << "an exception that must not leave an export";
    else
        EXPECT_TRUE(IsStatedCode(*outcome.code, point)) << std::hex << *outcome.code;
    if (outcome.result.value_or(FALSE) == FALSE)
        EXPECT_TRUE(m_session->IsHostUntouched());
}

void CSweep::CheckWrites(const FaultPoint& point) const
{
    const RegistryWrites& writes = m_injector.Writes();
    if (point.Function().kind != FaultKind::Registry)
        EXPECT_TRUE(IsPrefix(writes, m_goodWrites)) << "what was written is no beginning of what "
                                                       "is written without a failure";
    for (const std::wstring& write : writes)
    {
        const bool isGood = std::any_of(m_goodWrites.begin(), m_goodWrites.end(),
                                        [&](const std::wstring& good)
                                        { return TargetOf(good) == TargetOf(write); });
        EXPECT_TRUE(isGood) << Narrow(write);
    }
}

void CSweep::CheckSurroundings() const
{
    EXPECT_TRUE(IsWindowEnabled(m_owner));
    EXPECT_EQ(0, DialogsOfThisThread()) << "a dialog is left";
}

// Growth that doesn't go on is a cache that was filled.
void CSweep::CheckLeaks(const std::vector<FaultPoint>& points)
{
    if (Growth(points).empty())
        return;
    const std::string growth = Growth(points);
    if (growth.empty())
        return;
    const FaultPoint point = FindLeak(points);
    Call(point);
    ADD_FAILURE() << "left behind:" << growth << "; at " << point << ", from"
                  << m_injector.TraceOfFailure() << ":" << Growth({point});
}

std::string CSweep::Growth(const std::vector<FaultPoint>& points)
{
    const ResourceCounts before = CountResources();
    for (const FaultPoint& point : points)
        Call(point);
    return Difference(before, CountUntil(before));
}

FaultPoint CSweep::FindLeak(std::vector<FaultPoint> points)
{
    while (points.size() > 1)
    {
        const auto middle = points.begin() + static_cast<ptrdiff_t>(points.size() / 2);
        const std::vector<FaultPoint> first(points.begin(), middle);
        const std::vector<FaultPoint> second(middle, points.end());
        points = Growth(first).empty() ? second : first;
    }
    return points.front();
}
