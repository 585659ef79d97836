// The soft-key bar of the home screen, made by the platform's shell library.
#pragma once

#include "platform/Win.h"

#include <string>

// The bar belongs to its window and goes with it.
class CSoftKeys
{
public:
    // Creates the bar of `window`, and from then on keeps the window in the room between the top
    // bar and the soft keys, whatever shape the screen takes. Without the shell library's help
    // there is simply no bar.
    void Create(HWND window);

    // Writes the two keys anew.
    void SetTexts(const std::wstring& left, const std::wstring& right);

    // Where the bar begins, in screen pixels; the screen's bottom edge when there is no bar.
    int Top() const;

private:
    HWND m_bar = nullptr;
};
