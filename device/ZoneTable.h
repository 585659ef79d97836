// The rules of the world's time zones, which the program carries along.
#pragma once

#include <string>

#include "device/PosixZone.h"

namespace zones
{

// Finds a zone by its name, such as "Europe/Lisbon". False, with `zone` untouched, for an unknown
// one.
bool Find(const std::wstring& name, Zone& zone);

} // namespace zones
