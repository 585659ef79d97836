// The arithmetic of the program scan: which files it takes, what they are called, and the question
// to the launcher-menu process. Values only; the scan itself is ProgramScan.h.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Char16.h"

namespace programs
{

// How many characters of a path the question holds, its terminating zero included.
constexpr size_t kPathSize = 260;

#pragma pack(push, 1)
// What WM_COPYDATA carries to the launcher-menu process: is this Start Menu entry shown?
struct FilterRequest
{
    uint32_t Flags;
    Char16 Path[kPathSize];
};
#pragma pack(pop)
static_assert(sizeof(FilterRequest) == 524, "the launcher-menu process checks the size");

// Gives the lower-case form of a code unit.
using FoldFunction = Char16 (*)(Char16);

// True for the names of shortcuts and programs, at least one character before the extension.
bool IsProgramFile(StringView16 name, FoldFunction fold);

// What an entry is called in a list: its path's last component without the extension.
String16 DisplayText(StringView16 path);

// True for paths that the question can hold.
bool FitsRequest(StringView16 path);

// The question about a path that fits, zeros behind it.
FilterRequest MakeRequest(StringView16 path);

} // namespace programs
