// The sample device with its shell's main window, in a registry and a Start Menu of its own, worked
// by messages as keys and the stylus give them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "device/HomeScreen.h"
#include "device/MenuProcessWindow.h"
#include "device/NowScreen.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/StartMenu.h"

class CShellDevice
{
public:
    // Puts the sample data on the device; the shell isn't up yet.
    CShellDevice();

    // Brings the shell up, on the home page.
    void Start();

    CHomeScreen& Shell() { return *m_shell; }
    const CNowScreen& Now() const { return m_now; }
    CRegistrySandbox& Machine() { return m_machine; }
    const CStartMenu& StartMenu() const { return m_startMenu; }

    // Press a key, tap the middle of a target of the page, press a soft key.
    void Press(WPARAM key);
    void Tap(const CPage& page, int target);
    void TapAt(POINT point);
    void LeftKey();
    void RightKey();

    // Does the work, answers a message box that it may bring up, and gives the box's text; empty
    // when there was none.
    std::wstring MessageOf(const std::function<void()>& work);

    // Replaces a list, with what it remembers of its slots; each entry is a name and a weight.
    struct Entry
    {
        std::wstring Name;
        uint16_t Weight;
    };
    void SetList(const std::wstring& list, const std::vector<Entry>& entries);
    // The weight in a list; 0xFFFF when it isn't there.
    static uint16_t WeightIn(const std::wstring& list, const std::wstring& name);
    // The names of a list in its order.
    static std::vector<std::wstring> NamesIn(const std::wstring& list);

    // The key path and the entry name of a product's item.
    static std::wstring ItemPath(const std::wstring& below);
    static std::wstring ItemName(const std::wstring& below) { return L"m:" + ItemPath(below); }

private:
    CRegistrySandbox m_machine;
    CStartMenu m_startMenu;
    CMenuProcessWindow m_menuProcess;
    CNowScreen m_now;
    std::unique_ptr<CHomeScreen> m_shell;
};

// The texts of entries, in order.
std::vector<std::wstring> TextsOf(const std::vector<ShellEntry>& entries);
