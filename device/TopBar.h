// The bar at the top of the screen: title on the left, clock on the right.
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

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

private:
    void Paint();

    UniqueFont m_bold;
    UniqueFont m_normal;
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
