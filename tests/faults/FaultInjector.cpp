#include "tests/faults/FaultInjector.h"

#include "tests/faults/RegistryRecord.h"

#include <cstdint>
#include <ostream>
#include <sstream>
#include <utility>

namespace
{

// More arguments than any function of the table takes.
constexpr size_t kArguments = 12;
constexpr size_t kTraceDepth = 32;
using AnyFunction = UINT_PTR (*)(UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR,
                                 UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR, UINT_PTR);

std::array<AnyFunction, kFaultFunctionCount> g_originals;
CallCounts g_calls;
RegistryWrites g_writes;
FaultPoint g_point;
bool g_isArmed;
bool g_hasFailed;
std::array<void*, kTraceDepth> g_trace;

bool FailsNow(size_t function)
{
    if (!g_isArmed)
        return false;
    const unsigned call = ++g_calls[function];
    if (function != g_point.function)
        return false;
    if (call != g_point.call && !(g_point.forEver && call > g_point.call))
        return false;
    if (!g_hasFailed)
        CaptureStackBackTrace(1, kTraceDepth, g_trace.data(), nullptr);
    g_hasFailed = true;
    return true;
}

// Takes the place of one function. Reading arguments that a caller didn't pass does no harm: they
// lie in its frame.
template <size_t Index>
UINT_PTR Stub(UINT_PTR a, UINT_PTR b, UINT_PTR c, UINT_PTR d, UINT_PTR e, UINT_PTR f, UINT_PTR g,
              UINT_PTR h, UINT_PTR i, UINT_PTR j, UINT_PTR k, UINT_PTR l)
{
    constexpr FaultFunction kFunction = kFaultFunctions[Index];
    if (FailsNow(Index))
    {
        if (kFunction.error != 0)
            SetLastError(kFunction.error);
        return kFunction.failure;
    }
    const UINT_PTR result = g_originals[Index](a, b, c, d, e, f, g, h, i, j, k, l);
    if constexpr (kFunction.write != WriteKind::None)
    {
        const UINT_PTR arguments[kArguments] = {a, b, c, d, e, f, g, h, i, j, k, l};
        if (g_isArmed && static_cast<LONG>(result) == ERROR_SUCCESS)
            if (std::wstring write = DescribeWrite(kFunction.write, arguments); !write.empty())
                g_writes.push_back(std::move(write));
    }
    return result;
}

template <size_t... Indices>
constexpr std::array<AnyFunction, kFaultFunctionCount> MakeStubs(std::index_sequence<Indices...>)
{
    return {Stub<Indices>...};
}

constexpr std::array<AnyFunction, kFaultFunctionCount> kStubs =
    MakeStubs(std::make_index_sequence<kFaultFunctionCount>());

} // namespace

std::ostream& operator<<(std::ostream& stream, const FaultPoint& point)
{
    if (point.function >= kFaultFunctionCount)
        return stream << "no failure";
    return stream << "call " << point.call << " of " << point.Function().name
                  << (point.forEver ? " and all later ones" : "");
}

CFaultInjector::CFaultInjector(HMODULE module) : m_module(module)
{
    // Stays, so that it doesn't count as growth.
    g_writes.reserve(256);
    g_writes.clear();
    Disarm();
    for (size_t i = 0; i < kFaultFunctionCount; ++i)
    {
        void** const slot = FindImport(module, kFaultFunctions[i].dll, kFaultFunctions[i].name);
        if (!slot)
            continue;
        g_originals[i] = reinterpret_cast<AnyFunction>(*slot);
        m_patches.push_back(
            std::make_unique<CImportPatch>(slot, reinterpret_cast<void*>(kStubs[i])));
    }
}

CFaultInjector::~CFaultInjector()
{
    Disarm();
}

void CFaultInjector::Arm(const FaultPoint& point)
{
    g_point = point;
    g_calls.fill(0);
    g_writes.clear();
    g_trace.fill(nullptr);
    g_hasFailed = false;
    g_isArmed = true;
}

void CFaultInjector::Disarm()
{
    g_isArmed = false;
}

const CallCounts& CFaultInjector::Calls() const
{
    return g_calls;
}

const RegistryWrites& CFaultInjector::Writes() const
{
    return g_writes;
}

bool CFaultInjector::HasFailed() const
{
    return g_hasFailed;
}

std::string CFaultInjector::TraceOfFailure() const
{
    const auto base = reinterpret_cast<uintptr_t>(m_module);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(m_module);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    std::ostringstream trace;
    for (const void* const address : g_trace)
    {
        const uintptr_t offset = reinterpret_cast<uintptr_t>(address) - base;
        if (address && offset < headers->OptionalHeader.SizeOfImage)
            trace << " " << std::hex << headers->OptionalHeader.ImageBase + offset;
    }
    return trace.str();
}
