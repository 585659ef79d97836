// The screen's logical resolution, which every pixel constant of the dialogs is scaled with.
#pragma once

// Dots per inch of the screen. Read from the system once, by the first call or at start-up; a
// screen that reports nothing sensible counts as 96.
struct ScreenResolution
{
    int dpiX = 0;
    int dpiY = 0;
};

// Reads the resolution unless that has been done.
void ReadScreenResolution();

// The module-wide resolution, read if need be.
const ScreenResolution& GetScreenResolution();
