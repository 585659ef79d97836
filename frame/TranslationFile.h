// Reads the translation file into memory, in either of its two encodings.
#pragma once

#include "platform/Memory.h"

using UniqueText = UniqueMemory<wchar_t>;

// The whole file as UTF-16 with a zero behind it, and its length without that zero. A file that
// begins with FF FE is UTF-16 little-endian, any other one is in the system's ANSI code page. Null
// when the file can't be opened, read whole or converted, when it is larger than 1 GB, or when it
// is nothing but the two bytes FF FE.
UniqueText ReadTranslationFile(const wchar_t* path, size_t& length);
