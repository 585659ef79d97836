// Lengths in logical pixels (96 per inch) turned into device pixels.
#pragma once

// `value` logical pixels at `dpi` dots per inch: (value x dpi + 48) / 96 toward zero, taken of the
// magnitude, with the sign put back. Saturates instead of overflowing.
int ScaleToDpi(int value, int dpi);

// The same with the screen's horizontal or vertical resolution.
int ScaleX(int value);
int ScaleY(int value);
