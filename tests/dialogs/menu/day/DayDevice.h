// The sample device of the editing day: its registry, its Start Menu, a file on its own drive and
// the launcher-menu window. Used by the tests of the day and by the processes that they start.
#pragma once

#include "tests/support/DeviceRoot.h"
#include "tests/support/ImageProcess.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/StartMenu.h"

#include <string>
#include <vector>

// Text that DumpDifference can compare: every value of the device's registry by its type and every
// key, those of the customisation layer as "Customize\...", those of the rating lists as
// "Ratings\...".
using DeviceState = std::wstring;

// A fresh device; it is gone with the object. One at a time in one prefix.
class CDayDevice
{
public:
    CDayDevice();
    CDayDevice(const CDayDevice&) = delete;
    CDayDevice& operator=(const CDayDevice&) = delete;

    DeviceState State() const;
    DWORD LastKey() const;
    // Makes changes by hand: lines of the state that come, behind "+", and that go, behind "-".
    void Change(const std::vector<std::wstring>& changes);
    // The folder from which the Start Menu's links come.
    const std::wstring& StartMenuPath() const { return m_startMenu.Path(); }
    // For JoinDayDevice.
    std::wstring Address() const;

private:
    CRegistrySandbox m_registry;
    CStartMenu m_startMenu;
    CDeviceRoot m_files;
};

// Makes another process, which the test has started, use the device; returns the Start Menu's path.
std::wstring JoinDayDevice(const std::wstring& address);

// The launcher-menu window: shows everything and draws the icons from 100 to 139. Unlike the device
// it is one process's own.
class CDayLauncher
{
public:
    CDayLauncher();

private:
    CImageProcess m_process;
};

// How many icons it draws: in Choose Icon an image path's icon stands behind them.
constexpr int kLauncherIcons = 40;

// A file on the device.
constexpr const wchar_t* kDayFile = L"\\Planner\\Trip.Planner.exe";
