#include "frame/TavException.h"

void ThrowBroken()
{
    throw CTavException(kTavBroken);
}

void ThrowOutOfMemory()
{
    throw CTavException(kTavOutOfMemory);
}

void ThrowInvalidArgument()
{
    throw CTavException(kTavInvalidArgument);
}

#ifdef _WIN32
void ThrowLastError()
{
    throw CTavException(HResultOfError(GetLastError()));
}
#endif
