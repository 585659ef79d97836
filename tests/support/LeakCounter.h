// Counts what this process holds of the system's resources, to show that something leaves nothing
// behind. The usual counting calls answer 0 where the tests run, so the tables themselves are read.
#pragma once

#include "platform/Win.h"

#include <cstddef>
#include <functional>
#include <iosfwd>

// What a process holds at one moment. Two equal counts, taken before and after many repetitions of
// the same work, show that the work leaks nothing.
struct ResourceCounts
{
    int gdiObjects = 0;
    // Of all threads, children included.
    int windows = 0;
    int menus = 0;
    // Files, registry keys, threads, events and so on.
    int kernelHandles = 0;
    // Bytes in use in all heaps of the process.
    size_t heapBytes = 0;
};

ResourceCounts CountResources();
// Counts again and again until the numbers are the expected ones, at most for three seconds: short-
// lived threads of the shell's announcements may still be on their way out. Returns the last count.
ResourceCounts CountUntil(const ResourceCounts& expected);

// Checks that `work` leaves nothing behind; it does the same thing many times. What the system
// caches on first use grows once, a leak grows each time: growth is looked at again.
void ExpectNothingLeftBy(const std::function<void()>& work);

bool operator==(const ResourceCounts& left, const ResourceCounts& right);
std::ostream& operator<<(std::ostream& stream, const ResourceCounts& counts);
