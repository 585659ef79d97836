// The launcher menu's pages: a list, a grid, or a grid that is meant for the d-pad and the number
// keys, as each menu was customised.
#pragma once

#include "device/LauncherMenu.h"
#include "device/MenuLayout.h"
#include "device/Page.h"

class CLauncherPage : public CPage
{
public:
    // `menu` must live longer.
    CLauncherPage(CPageHost& host, const CItemPainter& painter, CLauncherMenu& menu);

    const wchar_t* LeftKeyText() const override;
    const wchar_t* RightKeyText() const override;
    void OnLeftKey() override;
    void OnRightKey() override;
    void Reload() override;
    void OnResize() override;
    void Paint(HDC dc) override;
    std::vector<RECT> Areas() const override;
    void Activate(int target) override;
    bool OnKey(WPARAM key) override;
    // A tap on the scroll bar turns the page.
    void OnStylusDown(POINT point) override;

    // The menu in `menu` has become another one: shows it from its beginning.
    void ShowFromBeginning();

    MenuStyle Style() const;
    MenuLayout Layout() const;
    // The item in the first cell.
    int First() const { return m_first; }

protected:
    int NextTarget(WPARAM key) const override;

private:
    int Count() const { return static_cast<int>(m_menu.Entries().size()); }
    void ScrollTo(int first);
    void ScrollToSelected();
    std::wstring PageOfPages() const;
    bool OpenCell(int cell);

    CLauncherMenu& m_menu;
    int m_first = 0;
};
