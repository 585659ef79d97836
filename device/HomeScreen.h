// The shell's main window, between the top bar and the soft keys: shows one page at a time (home,
// launcher menu, settings, Now screen) and does for the pages what leads beyond them.
#pragma once

#include <memory>

#include "device/HostWindow.h"
#include "device/HomePage.h"
#include "device/LauncherMenu.h"
#include "device/LauncherPage.h"
#include "device/NowPage.h"
#include "device/NowScreen.h"
#include "device/SettingsPage.h"
#include "device/SoftKeys.h"

class CHomeScreen : public CHostWindow, private CPageHost
{
public:
    // Fills the screen between the top bar and the soft keys. Shows `now`, which must live longer,
    // over itself.
    explicit CHomeScreen(const CNowScreen& now);
    // The Now screen doesn't stay behind.
    ~CHomeScreen() override;

    // Shows the window and brings it to the foreground.
    void Show();

    // Reads everything that is shown anew and repaints. A failure is shown and leaves the old
    // picture.
    void Reload();

    // Goes to a page; to the launcher at its first level.
    void GoTo(PageId page) override;
    // Goes to the launcher with the menu of that key path open; false, at the first level, when
    // there is none.
    bool ShowMenu(const std::wstring& keyPath);

    PageId CurrentPage() const { return m_page; }
    CHomePage& Home() { return m_home; }
    CLauncherPage& Launcher() { return m_launcher; }
    CSettingsPage& Settings() { return m_settings; }
    const CLauncherMenu& Menu() const { return m_menu; }

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    HWND PageWindow() const override { return Window(); }
    void OpenEntry(const ShellEntry& entry) override;
    void OpenDialog(const DialogEntry& dialog) override;
    void Leave() override;

    CPage& Page(PageId page);
    CPage& Shown() { return Page(m_page); }
    void ReloadMenu();
    void OnCommand(UINT command);
    void OnTimer();
    void OpenMenu(const ShellEntry& entry);
    void StartEntry(const ShellEntry& entry);
    void Count(const ShellEntry& entry, bool isInLauncher);
    void Say(const wchar_t* text, const std::wstring& value);
    void Paint();

    const CNowScreen& m_now;
    CItemPainter m_painter;
    CLauncherMenu m_menu;
    CHomePage m_home;
    CLauncherPage m_launcher;
    CSettingsPage m_settings;
    CNowPage m_nowPage;
    CSoftKeys m_keys;
    PageId m_page = PageId::Home;
    // The time that the home page shows.
    std::wstring m_time;
    // Not while the window is being built.
    bool m_isReady = false;
    // A dialog or a message is open: its end reads everything anew.
    bool m_isBusy = false;
};
