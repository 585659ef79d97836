// The two requests that the customisation dialogs send to the launcher-menu window, read from their
// bytes. Whatever another program sends is checked here before anything is done with it.
#pragma once

#include "platform/Char16.h"

#include <cstddef>
#include <cstdint>

namespace requests
{

// WM_COPYDATA's dwData and the one valid size of each record.
constexpr uint32_t kDrawImage = 6000;
constexpr size_t kDrawImageSize = 548;
constexpr uint32_t kIsShown = 6002;
constexpr size_t kIsShownSize = 524;

enum class ImageKind : uint32_t
{
    File = 0,
    IconNumber = 2,
};

struct ImageRequest
{
    ImageKind Kind = ImageKind::File;
    String16 Path;
    int32_t Number = 0;
    // The handle's low 32 bits, which are all that matter.
    uint32_t Dc = 0;
    int32_t Left = 0;
    int32_t Top = 0;
    int32_t Right = 0;
    int32_t Bottom = 0;
};

// Reads a request to draw. False for a wrong size, an unknown kind, a path that does not end within
// its field or an area that is empty, turned inside out or larger than any screen.
bool ReadImageRequest(const uint8_t* data, size_t size, ImageRequest& request);

// Reads a question whether a launch target is shown: its path. False for a wrong size or a path
// that does not end within its field or is empty.
bool ReadShownRequest(const uint8_t* data, size_t size, String16& path);

} // namespace requests
