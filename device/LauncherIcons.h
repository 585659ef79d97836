// The launcher's icons: resources of the program that carry the numbers from 100 up.
#pragma once

#include "platform/Handles.h"

namespace icons
{

constexpr int kFirst = 100;
constexpr int kFolder = 100;
constexpr int kDocument = 109;
constexpr int kGame = 117;
constexpr int kSettings = 129;

// One icon at a size in device pixels; null when there is none of that number.
UniqueIcon Load(int number, int size);

// Draws an icon in the middle of `area`, at most `size` pixels wide and high and never larger than
// the area. False when there is none of that number.
bool Draw(HDC dc, int number, const RECT& area, int size);

// Draws a given icon in the same way.
void Draw(HDC dc, HICON icon, const RECT& area, int size);

// Draws the file's own icon: a shortcut's the one it names, any other file's the system's.
// False when the file isn't there.
bool DrawOfFile(HDC dc, const wchar_t* path, const RECT& area, int size);

} // namespace icons
