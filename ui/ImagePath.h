// Draws the image that an image path names: a file, whose own icon it is, or an icon within a file.
#pragma once

#include "ui/BitmapBuffer.h"

#include <string>

// The size of an icon in device pixels.
int IconWidth();
int IconHeight();

// Draws the path's image into the middle of the buffer: the launcher-menu process if it is there
// and can, otherwise this module itself. Nothing is drawn when there is no such image.
void DrawImagePath(const std::wstring& path, CBitmapBuffer& buffer);

// The same without asking the launcher-menu process.
void DrawImagePathLocally(const std::wstring& path, CBitmapBuffer& buffer);
