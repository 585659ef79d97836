// The menu's own words for changes of its customisation layer; RegistryReport.cpp asks here first.
#pragma once

#include <string>
#include <vector>

#include "device/RegistrySnapshot.h"

namespace report
{

// Describes a change of one key of the customisation layer: `values` of a key that is new, gone or
// different in `after`. What has no words of its own is left to the caller.
class CMenuReport
{
public:
    CMenuReport(const RegistrySnapshot& before, const RegistrySnapshot& after);

    // True for keys of the customisation layer, its root included.
    static bool Covers(const std::wstring& path);

    // A sentence for a key that appeared or vanished; empty when there are no special words.
    std::wstring KeyAppeared(const std::wstring& path) const;
    std::wstring KeyVanished(const std::wstring& path) const;
    // A sentence for one value; a null pointer means that it isn't there. Empty when there are no
    // special words.
    std::wstring ValueChanged(const std::wstring& path, const std::wstring& name,
                              const RegistryValue* was, const RegistryValue* now) const;

private:
    std::wstring Moved(const std::wstring& path, const RegistryValue* was,
                       const RegistryValue* now) const;
    std::wstring FlagsChanged(const std::wstring& path, const RegistryValue* was,
                              const RegistryValue* now) const;

    const RegistrySnapshot& m_before;
    const RegistrySnapshot& m_after;
};

} // namespace report
