// The icons that a menu item can be given, as an image list.
#pragma once

#include "platform/Handles.h"
#include "ui/ImageRequest.h"

#include <string>

// Makes the list: all icons that the launcher-menu process draws, from kFirstIconNumber on, and
// last the image of `imagePath` unless that is empty. Throws CTavException with the system's error
// when there is no memory for it.
UniqueImageList BuildIconList(const std::wstring& imagePath);
