#include "tests/faults/Sweep.h"

#include "frame/TavException.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/LeakCounter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <string_view>

namespace
{

// Sessions whose first failures make what stays from then on, such as the runtime's own records.
constexpr size_t kWarmUp = 5;

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
    // A control that isn't found can't be subclassed, which the system puts in its own words.
    return code == kTavOutOfMemory || code == kTavBroken || code == kTavInvalidArgument ||
           code == HResultOfError(ERROR_INVALID_WINDOW_HANDLE) ||
           code == HResultOfError(point.Function().error);
}

// The key or value that a write is about.
std::wstring TargetOf(const std::wstring& write)
{
    return write.substr(0, write.find(L'='));
}

bool IsDeletion(const std::wstring& write)
{
    return write.compare(0, 7, L"delete ") == 0 || write.compare(0, 6, L"clear ") == 0;
}

bool Contains(const RegistryWrites& writes, const std::wstring& write)
{
    return std::find(writes.begin(), writes.end(), write) != writes.end();
}

std::string InWords(const RegistryWrites& writes)
{
    std::string text;
    for (const std::wstring& write : writes)
        text.append("\n  ").append(write.begin(), write.end());
    return text;
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

// The first call makes what stays from then on.
CSweep::CSweep(const std::string& exportName, SessionEnd end) : m_run(exportName, end)
{
    m_run.Call({});
    m_goodOutcome = m_run.Call({});
    m_goodCalls = m_run.Injector().Calls();
    m_goodWrites = m_run.Injector().Writes();
    CheckSurroundings();
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
        m_run.Call(points[i * points.size() / kWarmUp % points.size()]);
    m_run.Rest();
    const ResourceCounts before = CountResources();
    for (const FaultPoint& point : points)
        CheckPoint(point);
    m_run.Rest();
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
    const CFaultCounter faults(m_run.Module());
    const SessionOutcome outcome = m_run.Call(point);
    std::ostringstream where;
    where << point << ", from" << m_run.Injector().TraceOfFailure();
    const testing::ScopedTrace trace(__FILE__, __LINE__, where.str());
    CheckOutcome(point, outcome);
    CheckWrites(point);
    CheckSurroundings();
    EXPECT_EQ(0, faults.Count()) << "the module touched memory that it must not";
    EXPECT_FALSE(m_run.Driver().WasStuck()) << "the session did not end by itself";
}

void CSweep::CheckOutcome(const FaultPoint& point, const SessionOutcome& outcome) const
{
    if (outcome.code)
        EXPECT_TRUE(IsStatedCode(*outcome.code, point)) << std::hex << *outcome.code;
    else
        EXPECT_TRUE(outcome.result) << "an exception that must not leave an export";
    const BOOL result = outcome.result.value_or(FALSE);
    EXPECT_TRUE(result == TRUE || result == FALSE) << result;
    EXPECT_TRUE(result || m_run.Session().IsHostUntouched());
}

// An allocation of the language fails the session there and then: what was written before stays.
// All else may fail unnoticed and change the session's course, but it writes nothing that is none
// of its business and deletes nothing that it would not have deleted.
void CSweep::CheckWrites(const FaultPoint& point) const
{
    const RegistryWrites& writes = m_run.Injector().Writes();
    const bool failsAtOnce = std::string_view(point.Function().name) == "malloc";
    EXPECT_TRUE(!failsAtOnce || IsPrefix(writes, m_goodWrites)) << InWords(writes);
    // What can't be read counts as malformed where malformed keys are cleaned away.
    const bool mayCleanUp =
        m_run.Session().CleansUp() && std::string_view(point.Function().name) == "RegQueryValueExW";
    for (const std::wstring& write : writes)
    {
        const bool mayDelete = mayCleanUp || Contains(m_goodWrites, write);
        EXPECT_TRUE(IsDeletion(write) ? mayDelete : m_run.Session().IsOwnPlace(TargetOf(write)))
            << InWords({write});
    }
}

void CSweep::CheckSurroundings() const
{
    EXPECT_TRUE(IsWindowEnabled(m_run.Owner()));
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
    ADD_FAILURE() << "left behind:" << growth;
    for (const FaultPoint& point : points)
    {
        Growth({point});
        const std::string own = Growth({point});
        EXPECT_EQ("", own) << "left behind by " << point;
    }
}

std::string CSweep::Growth(const std::vector<FaultPoint>& points)
{
    const ResourceCounts before = CountResources();
    for (const FaultPoint& point : points)
        m_run.Call(point);
    m_run.Rest();
    return Difference(before, CountUntil(before));
}
