// Memory from malloc that frees itself, for buffers whose size comes from outside: running out of
// memory gives null instead of an exception.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

struct FreeMemory
{
    void operator()(void* memory) const { std::free(memory); }
};

template <class Type>
using UniqueMemory = std::unique_ptr<Type[], FreeMemory>;

// Zero-filled memory for `count` objects of a plain type; null without enough memory.
template <class Type>
UniqueMemory<Type> AllocateZeroed(size_t count)
{
    return UniqueMemory<Type>(static_cast<Type*>(std::calloc(count, sizeof(Type))));
}
