// One help viewer at a time: a second start hands over to the window that is open.
#pragma once

#include "platform/Win.h"

#include <string>

#include "platform/Handles.h"

namespace help
{

// Keeps other viewers from starting for the length of its life, so that two that are started
// together don't miss each other's window. Waits a few seconds at most.
class CStartingViewer
{
public:
    CStartingViewer();
    ~CStartingViewer();
    CStartingViewer(const CStartingViewer&) = delete;
    CStartingViewer& operator=(const CStartingViewer&) = delete;

private:
    UniqueKernelHandle m_mutex;
    bool m_isHeld = false;
};

// Lets the viewer that is open show "PAGE.htm#TOPIC" and come to the front. False when there is
// none, or when it doesn't answer or refuses.
bool ShowInOpenViewer(const std::wstring& target);

} // namespace help
