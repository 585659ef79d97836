#include "platform/os/Library.h"

namespace os
{

HMODULE LoadLibraryFromSystemOrApplication(const wchar_t* name)
{
    return LoadLibraryExW(name, nullptr,
                          LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
}

FARPROC FindExport(HMODULE library, const char* name)
{
    return GetProcAddress(library, name);
}

} // namespace os
