// The request by which the dialogs have the launcher-menu process draw an icon into a device
// context of theirs.
#pragma once

#include "platform/Char16.h"
#include "platform/Win.h"

#include <cstddef>
#include <cstdint>

// COPYDATASTRUCT::dwData of the request.
constexpr ULONG_PTR kDrawImageRequest = 6000;

// What an image is found by.
enum ImageRequestKind : uint32_t
{
    ImageRequestFile = 0,
    ImageRequestNumber = 2,
};

constexpr size_t kImagePathSize = 260;

// The record as the other process reads it, on every word size; what a kind does not use is zero.
#pragma pack(push, 1)
struct ImageRequestRecord
{
    uint32_t Kind;
    // Zero-terminated.
    Char16 Path[kImagePathSize];
    int32_t Number;
    // A handle has no more than 32 bits that matter.
    uint32_t Dc;
    int32_t Left;
    int32_t Top;
    int32_t Right;
    int32_t Bottom;
};
#pragma pack(pop)

static_assert(sizeof(ImageRequestRecord) == 548);
static_assert(offsetof(ImageRequestRecord, Path) == 4);
static_assert(offsetof(ImageRequestRecord, Number) == 524);
static_assert(offsetof(ImageRequestRecord, Dc) == 528);
static_assert(offsetof(ImageRequestRecord, Left) == 532);
static_assert(offsetof(ImageRequestRecord, Bottom) == 544);

// Icons are numbered one by one from here.
constexpr int kFirstIconNumber = 100;
// Stands for no icon.
constexpr int kNoIcon = -1;

// Both ask the window that RefreshMenuProcess found, and return whether it has drawn.

// Has the icon `number` drawn into a rectangle of `dc`.
bool DrawIconNumber(int number, HDC dc, const RECT& rect);

// Has the image of a file drawn. False without asking for a path of 260 characters or more.
bool DrawFileImage(StringView16 path, HDC dc, const RECT& rect);
