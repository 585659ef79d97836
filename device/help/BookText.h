// The bytes of a page's file as text. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

#include <cstddef>
#include <cstdint>

namespace help
{

// UTF-16 behind its mark FF FE, otherwise UTF-8 with or without its mark. What is no character in
// that encoding becomes U+FFFD.
String16 DecodePage(const uint8_t* data, size_t size);

} // namespace help
