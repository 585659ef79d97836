// HRESULT and DWORD for code that is also built for systems without windows.h.
#pragma once

#ifdef _WIN32
#include "platform/Win.h"
#else
#include <cstdint>
using HRESULT = int32_t;
using DWORD = uint32_t;
#endif
