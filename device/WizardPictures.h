// The pictures of the install wizard: the device's own Now screen in its two layouts, drawn when
// the shell starts.
#pragma once

#include <string>

#include "device/NowContents.h"
#include "device/ScreenPicture.h"

namespace wizard
{

constexpr int kPictureWidth = 96;
constexpr int kPictureHeight = 107;

// The Now screen with its default panels, made small.
ScreenPixels DrawPicture(LayoutType type);

// The bytes of a bitmap file.
std::vector<uint8_t> BitmapFile(const ScreenPixels& pixels);

// Writes both pictures into the folder "qa_wizard.dat" of the installation folder. False when one
// of them can't be written.
bool WritePictures(const std::wstring& installFolder);

} // namespace wizard
