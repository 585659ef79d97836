// The icons that a menu item can be given, as an image list.
#pragma once

#include "platform/Handles.h"

#include <string>

// Icon number of the list's first image; the others follow one by one.
constexpr int kFirstIconNumber = 100;

// Makes the list: all icons that the launcher-menu process draws, and last the image of `imagePath`
// unless that is empty. Throws CTavException with the system's error when there is no memory for
// it.
UniqueImageList BuildIconList(const std::wstring& imagePath);
