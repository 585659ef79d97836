// Loading a library at run time and finding what it exports.
#pragma once

#include "platform/Win.h"

namespace os
{

// Loads a library from the application's folder or the system's, never from the current folder or
// the search path, where anybody might have put one of that name. Null when it isn't there.
HMODULE LoadLibraryFromSystemOrApplication(const wchar_t* name);

// The address of an exported function; null when there is none of that name.
FARPROC FindExport(HMODULE library, const char* name);

// The address as a function of its real type.
template <class Function>
Function FunctionCast(FARPROC address)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(address));
}

} // namespace os
