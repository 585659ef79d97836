// The home screen: date, the launcher's first items, and the dialogs to open; behind the left soft
// key the launcher menu itself, and behind a tap the Now screen, so that every customisation is
// seen at once.
#pragma once

#include <string>
#include <vector>

#include "device/Dialogs.h"
#include "device/HostWindow.h"
#include "device/LauncherMenu.h"
#include "device/NowScreen.h"
#include "device/SoftKeys.h"
#include "platform/Handles.h"

class CHomeScreen : public CHostWindow
{
public:
    // Fills the screen between the top bar and the soft keys. Shows `now`, which must live longer,
    // over itself.
    explicit CHomeScreen(const CNowScreen& now);

    // Shows the window and brings it to the foreground.
    void Show();

    // Reads the launcher menu anew and repaints. A failure is shown and leaves the old picture.
    void Reload();

    // Goes to the launcher menu, as the left soft key does.
    void ShowLauncher();
    // Goes to the Now screen, as its entry does.
    void ShowNow();

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    enum class Page
    {
        Home,
        Menu,
        Now
    };

    // What a tap or the selection can be on, on the page that is shown.
    int TargetCount() const;
    std::vector<RECT> TargetAreas() const;
    RECT Client() const;

    void OnTap(POINT point, bool released);
    void OnKey(WPARAM key);
    void OnLeftKey();
    void OnRightKey();
    void MoveSelection(int step);
    void Activate();
    void OpenDialog(int entry);
    void OpenItem(int item);
    void CustomizeNowScreen();
    void ShowPage(Page page);
    void LoadItems();

    void Paint();
    void PaintHome(HDC dc);
    void PaintMenu(HDC dc);
    void PaintNowLink(HDC dc, RECT area);
    std::wstring NoteOf(const DialogEntry& dialog) const;
    void PaintEntry(HDC dc, int entry, const RECT& area);
    void PaintGridItem(HDC dc, const CMenuItem& item, const RECT& area, bool selected);
    void PaintListItem(HDC dc, const CMenuItem& item, const RECT& area, bool selected);
    void PaintIcon(HDC dc, const CMenuItem& item, const RECT& area, int size);

    // What leads to the Now screen stands behind the dialogs.
    static constexpr int kNowTarget = kDialogCount;

    const CNowScreen& m_now;
    CLauncherMenu m_menu;
    // The items of the open menu, and of the first level for the home page's strip.
    std::vector<CMenuItemPtr> m_items;
    CSoftKeys m_keys;
    UniqueFont m_bold;
    UniqueFont m_normal;
    UniqueFont m_small;
    Page m_page = Page::Home;
    int m_selected = 0;
    int m_first = 0;
    bool m_pressed = false;
};
