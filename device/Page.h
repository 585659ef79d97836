// What the home screen's window can show between the bars: one page at a time, each with targets
// that a tap or the selection can be on, and with words for the soft keys.
#pragma once

#include "platform/Win.h"

#include <vector>

#include "device/Dialogs.h"
#include "device/ItemPainting.h"
#include "device/ShellEntry.h"

enum class PageId
{
    Home,
    Launcher,
    Settings,
    Now,
};

// What a page asks of the window that shows it.
class CPageHost
{
public:
    virtual HWND PageWindow() const = 0;
    virtual void GoTo(PageId page) = 0;
    // Starts it, or opens it in the launcher, and counts that.
    virtual void OpenEntry(const ShellEntry& entry) = 0;
    // Runs the dialog; whatever becomes of it, everything is read anew afterwards.
    virtual void OpenDialog(const DialogEntry& dialog) = 0;
    // Ends the shell.
    virtual void Leave() = 0;

protected:
    ~CPageHost() = default;
};

class CPage
{
public:
    // Both must live longer.
    CPage(CPageHost& host, const CItemPainter& painter) : m_host(host), m_painter(painter) {}
    virtual ~CPage() = default;
    CPage(const CPage&) = delete;
    CPage& operator=(const CPage&) = delete;

    // The words of the soft keys; English, to be translated.
    virtual const wchar_t* LeftKeyText() const = 0;
    virtual const wchar_t* RightKeyText() const = 0;
    virtual void OnLeftKey() = 0;
    virtual void OnRightKey() = 0;

    // The page comes up, or gives way to another one.
    virtual void OnShow() {}
    virtual void OnHide() {}
    // Reads what it shows anew. Throws CTavException.
    virtual void Reload() = 0;
    // The room between the bars has changed.
    virtual void OnResize() {}

    virtual void Paint(HDC dc) = 0;

    // The places of the targets, in order. Targets that aren't on the screen have empty ones.
    virtual std::vector<RECT> Areas() const = 0;
    virtual void Activate(int target) = 0;

    // Handles a key; false for one that means nothing here.
    virtual bool OnKey(WPARAM key);
    // The stylus selects a target when it comes down, and opens it when it leaves the same one.
    virtual void OnStylusDown(POINT point);
    void OnStylusUp(POINT point);

    int Selected() const { return m_selected; }
    // Bounded by the targets there are; repaints.
    void Select(int target);

protected:
    // The target that an arrow key leads to.
    virtual int NextTarget(WPARAM key) const;
    // The target at a point; -1 for none.
    int TargetAt(POINT point) const;
    RECT Client() const;
    static int Dpi();
    void Redraw() const;

    CPageHost& m_host;
    const CItemPainter& m_painter;

private:
    int m_selected = 0;
    bool m_isPressed = false;
};
