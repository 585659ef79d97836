// Turns the language's report of exhausted memory into the module's exception.
#pragma once

#include <new>

#include "frame/TavException.h"

// Runs one operation of the model and returns its result; std::bad_alloc leaves it as 0x8007000E.
template <class Operation>
auto WithMemoryFailure(Operation&& operation)
{
    try
    {
        return operation();
    }
    catch (const std::bad_alloc&)
    {
        ThrowOutOfMemory();
    }
}
