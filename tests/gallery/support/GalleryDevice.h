// The sample device in one of its languages, in a registry and in folders of the test's own: what
// the gallery's tests open every dialog over.
#pragma once

#include "device/MenuProcessWindow.h"
#include "device/TopBar.h"
#include "tests/dialogs/city/CityFolder.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/StartMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The languages that the device has a folder for, and "en".
std::vector<std::string> DeviceLanguages();

// Full-screen windows stay below the device's top bar as long as it lives. One at a time; it must
// exist before the module is loaded.
class CGalleryDevice
{
public:
    explicit CGalleryDevice(const std::string& language);
    CGalleryDevice(const CGalleryDevice&) = delete;
    CGalleryDevice& operator=(const CGalleryDevice&) = delete;

    // Replaces the language by these entries, lines of "English|translation".
    void Translate(const std::wstring& entries);
    std::wstring Translated(const wchar_t* text) const;
    void RemoveCities() { m_install.Uninstall(); }

private:
    CRegistrySandbox m_registry;
    CStartMenu m_startMenu;
    CDeviceRoot m_files;
    CCityFolder m_install;
    CWorkAreaBelow m_workArea;
    CMenuProcessWindow m_launcher;
};

// How a test's name ends that has a language for its parameter.
std::string LanguageName(const testing::TestParamInfo<std::string>& info);
