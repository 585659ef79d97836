// Pictures of the whole screen, as a person sees it.
#pragma once

#include "platform/Win.h"

#include <cstdint>
#include <string>
#include <vector>

// The screen's pixels, 24 bits each (blue, green, red), rows from the top, each row padded to a
// multiple of four bytes.
struct ScreenPixels
{
    int Width = 0;
    int Height = 0;
    std::vector<uint8_t> Bytes;

    int Stride() const { return (Width * 3 + 3) / 4 * 4; }
    bool operator==(const ScreenPixels& other) const
    {
        return Width == other.Width && Height == other.Height && Bytes == other.Bytes;
    }
};

// Copies the screen; empty when the system refuses.
ScreenPixels CopyScreen();

// Copies the screen once two looks in a row have shown the same; the last look after a few seconds
// of unrest.
ScreenPixels CopySettledScreen();

// Writes a PNG file. COM must be initialised on the calling thread. False on failure.
bool WritePng(const ScreenPixels& pixels, const std::wstring& file);
