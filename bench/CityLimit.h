// The least that a dialog with a list of cities has to do: what Select City is measured against.
#pragma once

#include "platform/Win.h"

#include <string>
#include <vector>

// The cells, ready to be drawn.
struct CityTexts
{
    std::vector<std::wstring> Names;
    std::wstring Area = L"Somewhere";
};

struct LimitRequest
{
    const CityTexts& texts;
    // Where the soft keys are taken from; null for a dialog without any.
    HINSTANCE softKeys;
    // Whether there is also a search box that has the focus and raises the input panel.
    bool withSearchBox;
    // The row that is selected and scrolled into view.
    uint32_t selected;
};

constexpr int kLimitListId = 202;

// Shows the dialog until it gets the command IDCANCEL.
void RunLimitDialog(HWND owner, const LimitRequest& request);
