// Lets an allocation of the code under test fail. The test program is linked with --wrap=calloc.
#pragma once

#include <cstddef>

// While an object lives, every calloc of at least `size` bytes fails.
class CFailingAllocation
{
public:
    explicit CFailingAllocation(size_t size);
    ~CFailingAllocation();
    CFailingAllocation(const CFailingAllocation&) = delete;
    CFailingAllocation& operator=(const CFailingAllocation&) = delete;

    // How many allocations have been refused.
    static int Refused();
};
