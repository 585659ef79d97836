// Puts the sample data on a device: registry and Start Menu folder. The shell does it at its first
// start; a device that was seeded before keeps what its user has made of it.
#pragma once

#include <string>

namespace seed
{

// True when this device carries the sample data of this version.
bool IsSeeded();

// Writes the sample menu, the usage lists, the plug-ins of the Now screen and the installation
// folder into HKEY_LOCAL_MACHINE, and the one plug-in key that is the user's.
// Values that are there already are written anew; nothing else is touched.
void WriteRegistry(const std::wstring& installFolder);

// Deletes everything that the product and the shared launcher component keep in the registry, and
// that key of the user's.
void EraseRegistry();

// Writes the shortcuts below `startMenuFolder`; `iconFile` is the program that holds their icons.
// False when one of them can't be written.
bool WriteStartMenu(const std::wstring& startMenuFolder, const std::wstring& iconFile);

} // namespace seed
