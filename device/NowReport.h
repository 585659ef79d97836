// The Now screen's own words for changes of its plug-ins and its layout; RegistryReport.cpp asks
// here first.
#pragma once

#include <string>

#include "device/RegistrySnapshot.h"

namespace report
{

// A sentence for a value of the key `path`; a null pointer means that it isn't there. Empty when
// there are no special words. `after` has the plug-in's name.
std::wstring NowValueChanged(const RegistrySnapshot& after, const std::wstring& path,
                             const std::wstring& name, const RegistryValue* was,
                             const RegistryValue* now);

// A sentence for a plug-in's registration that was deleted; empty for any other key.
std::wstring NowKeyVanished(const RegistrySnapshot& before, const std::wstring& path);

} // namespace report
