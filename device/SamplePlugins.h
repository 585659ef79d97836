// The sample device's registrations of Now screen plug-ins: every way in which one can be
// installed, missing or broken. Seed.cpp writes them, the tests count them.
#pragma once

#include "device/SampleMenu.h"

namespace sample
{

// A value that was not given is not written.
struct PluginKey
{
    static constexpr int64_t kNone = -1;

    // The registration's key.
    const wchar_t* Name;
    const wchar_t* Text = nullptr;
    int64_t Kind = kNone;
    int64_t BuiltIn = kNone;
    int64_t Inactive = kNone;
    // Keys that tell whether the plug-in is installed.
    const wchar_t* MachineCheck = nullptr;
    const wchar_t* UserCheck = nullptr;
};

Table<PluginKey> PluginKeys();

// What the installations of the plug-ins that are there have left: keys below HKEY_LOCAL_MACHINE
// and HKEY_CURRENT_USER.
constexpr const wchar_t* kInstalledForMachine =
    L"\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Device\\Installed\\Sky Watch";
constexpr const wchar_t* kInstalledForUser = L"\\Software\\Tav Lumenar Device\\Ring Control";

} // namespace sample
