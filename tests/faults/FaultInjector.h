// Lets the calls that the module makes of the system fail, one chosen call or all from a chosen one
// on, and counts them. Written for the 64-bit build: there all functions are called alike.
#pragma once

#include "platform/Win.h"
#include "tests/faults/FaultTable.h"
#include "tests/support/ImportPatch.h"

#include <array>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

// One place at which a session fails: the call of that number, from 1, of a function.
struct FaultPoint
{
    // In kFaultFunctions; beyond it for none.
    size_t function = kFaultFunctionCount;
    unsigned call = 0;
    // All later calls fail, too.
    bool forEver = false;

    const FaultFunction& Function() const { return kFaultFunctions[function]; }
};
std::ostream& operator<<(std::ostream& stream, const FaultPoint& point);

// How often each function of the table was called.
using CallCounts = std::array<unsigned, kFaultFunctionCount>;
// What was written to the registry, call by call, in words.
using RegistryWrites = std::vector<std::wstring>;

// Stands between the module and the system from construction to destruction; one at a time. Only
// the module's own calls are seen.
class CFaultInjector
{
public:
    explicit CFaultInjector(HMODULE module);
    ~CFaultInjector();
    CFaultInjector(const CFaultInjector&) = delete;
    CFaultInjector& operator=(const CFaultInjector&) = delete;

    // From now on calls are counted from 1, writes are recorded anew, and the point fails.
    void Arm(const FaultPoint& point);
    // From now on nothing fails and nothing is counted.
    void Disarm();

    // Since the last Arm.
    const CallCounts& Calls() const;
    const RegistryWrites& Writes() const;
    bool HasFailed() const;
    // Where in the module the first failing call came from, outwards, as offsets for addr2line.
    std::string TraceOfFailure() const;

private:
    HMODULE m_module;
    std::vector<std::unique_ptr<CImportPatch>> m_patches;
};
