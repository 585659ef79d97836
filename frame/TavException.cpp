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

void ThrowLastError()
{
    throw CTavException(HResultOfError(GetLastError()));
}
