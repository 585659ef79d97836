#include "device/Page.h"

#include <algorithm>

#include "device/Neighbour.h"
#include "frame/Resolution.h"

bool CPage::OnKey(WPARAM key)
{
    switch (key)
    {
    case VK_RETURN:
        Activate(m_selected);
        return true;
    case VK_ESCAPE:
    case VK_BACK:
        OnRightKey();
        return true;
    default:
    {
        const int next = NextTarget(key);
        if (next == m_selected)
            return false;
        Select(next);
        return true;
    }
    }
}

void CPage::OnStylusDown(POINT point)
{
    const int target = TargetAt(point);
    m_isPressed = target >= 0;
    if (m_isPressed)
        Select(target);
}

void CPage::OnStylusUp(POINT point)
{
    const bool wasPressed = m_isPressed;
    m_isPressed = false;
    if (wasPressed && TargetAt(point) == m_selected)
        Activate(m_selected);
}

void CPage::Select(int target)
{
    const int count = static_cast<int>(Areas().size());
    m_selected = std::max(0, std::min(target, count - 1));
    Redraw();
}

int CPage::NextTarget(WPARAM key) const
{
    return NeighbourOf(Areas(), m_selected, key);
}

int CPage::TargetAt(POINT point) const
{
    const std::vector<RECT> areas = Areas();
    for (size_t i = 0; i < areas.size(); ++i)
        if (PtInRect(&areas[i], point))
            return static_cast<int>(i);
    return -1;
}

RECT CPage::Client() const
{
    RECT area = {};
    GetClientRect(m_host.PageWindow(), &area);
    return area;
}

int CPage::Dpi()
{
    return GetScreenResolution().dpiY;
}

void CPage::Redraw() const
{
    InvalidateRect(m_host.PageWindow(), nullptr, FALSE);
}
