// The page behind the home screen's right soft key: the dialogs that customise the device, each
// with what is chosen at the moment, help, and the way out.
#pragma once

#include "device/LauncherMenu.h"
#include "device/Page.h"

class CSettingsPage : public CPage
{
public:
    // `menu` must live longer.
    CSettingsPage(CPageHost& host, const CItemPainter& painter, const CLauncherMenu& menu);

    const wchar_t* LeftKeyText() const override;
    const wchar_t* RightKeyText() const override;
    void OnLeftKey() override;
    void OnRightKey() override;
    void Reload() override;
    void Paint(HDC dc) override;
    std::vector<RECT> Areas() const override;
    void Activate(int target) override;

    // The targets: the dialogs in the order of kDialogs, and behind them these two.
    static constexpr int kHelpTarget = kDialogCount;
    static constexpr int kExitTarget = kDialogCount + 1;
    static constexpr int kTargetCount = kDialogCount + 2;

    // What the page tells about each dialog's choice, in the order of kDialogs; empty where there
    // is nothing to tell.
    const std::vector<std::wstring>& Notes() const { return m_notes; }

private:
    std::wstring NoteOf(const DialogEntry& dialog) const;
    RECT TitleArea() const;

    const CLauncherMenu& m_menu;
    std::vector<std::wstring> m_notes;
};
