// Start-up of the module: nothing is created ahead but what every dialog needs.
#include "frame/Localizer.h"
#include "frame/Module.h"
#include "frame/Resolution.h"
#include "platform/Win.h"

// Remembers the instance, loads the translation and reads the screen's resolution. A missing
// translation leaves the module in English; the process is never refused.
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void* /*reserved*/)
{
    SetModuleInstance(module);
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    SetResourceInstance(module);
    LoadTranslations();
    ReadScreenResolution();
    return TRUE;
}
