// What tests of the dialog base share: the test program's resources and an owner window.
#pragma once

#include "frame/Module.h"
#include "platform/Handles.h"
#include "resources/resource.h"
#include "tests/ui/TestDialog.h"

#include <aygshell.h>

#include <gtest/gtest.h>

class DialogFixture : public testing::Test
{
protected:
    DialogFixture()
    {
        SetModuleInstance(GetModuleHandleW(nullptr));
        SetResourceInstance(GetModuleHandleW(nullptr));
    }

    // Runs a dialog that does `act` once it is up.
    template <class Dialog>
    INT_PTR Run(Dialog& dialog, std::function<void(HWND)> act)
    {
        dialog.onAct = std::move(act);
        return dialog.RunModal(owner.get());
    }

    UniqueWindow owner{CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 240,
                                       240, nullptr, nullptr, nullptr, nullptr)};
};

// The client area of a window, and the place of a control in its dialog's client area.
inline RECT ClientOf(HWND window)
{
    RECT rect = {};
    GetClientRect(window, &rect);
    return rect;
}

inline RECT RectInParent(HWND control)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}
