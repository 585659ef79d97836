// The bar at the top of the screen: title on the left, clock on the right. It turns the screen (a
// tap on the button beside the clock, or F9 whatever is open) and sees to it that the work area
// follows every turn.
#pragma once

#include "device/HostWindow.h"
#include "platform/Handles.h"

class CTopBar : public CHostWindow
{
public:
    // Shows the bar across the screen.
    CTopBar();

    // In device pixels.
    static int Height();

    // Where the button that turns the screen lies in a bar of this size; as high as the bar.
    static RECT TurnButton(SIZE bar);

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    void Paint();
    void PaintTurnButton(HDC dc, const RECT& area) const;
    void OnTap(POINT point);
    void OnScreenChange();
    void Turn();

    UniqueFont m_bold;
    UniqueFont m_normal;
    // Without a way to turn the screen there is no button.
    bool m_canTurn;
};

// Keeps every full-screen window below the top bar for the length of its life.
class CWorkAreaBelow
{
public:
    explicit CWorkAreaBelow(int top);
    ~CWorkAreaBelow();
    CWorkAreaBelow(const CWorkAreaBelow&) = delete;
    CWorkAreaBelow& operator=(const CWorkAreaBelow&) = delete;

private:
    RECT m_earlier = {};
};
