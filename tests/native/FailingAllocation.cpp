#include "tests/native/FailingAllocation.h"

#include <cstdint>

namespace
{

size_t g_limit = SIZE_MAX;
int g_refused = 0;

} // namespace

extern "C" void* __real_calloc(size_t count, size_t size);
extern "C" void* __wrap_calloc(size_t count, size_t size);

void* __wrap_calloc(size_t count, size_t size)
{
    if (count * size < g_limit)
        return __real_calloc(count, size);
    ++g_refused;
    return nullptr;
}

CFailingAllocation::CFailingAllocation(size_t size)
{
    g_refused = 0;
    g_limit = size;
}

CFailingAllocation::~CFailingAllocation()
{
    g_limit = SIZE_MAX;
}

int CFailingAllocation::Refused()
{
    return g_refused;
}
