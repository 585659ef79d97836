// Where things stand on the home screen: arithmetic on rectangles, for any screen size and
// resolution.
#pragma once

#include "platform/Win.h"

#include <vector>

// The date with the way to the Now screen, the city, and below two bands of slots with a heading
// each: what is pinned, and what is used most. A band without slots has no heading either; its
// rectangle is empty.
struct HomeLayout
{
    RECT Date;
    // Within the date's line: leads to the Now screen.
    RECT NowLink;
    RECT City;
    RECT PinnedHeading;
    RECT MostUsedHeading;
    // The pinned ones first.
    std::vector<RECT> Slots;
};

// `client` is the room between the bars; lengths inside are logical pixels at `dpi`.
HomeLayout LayOutHome(const RECT& client, int dpi, int pinned, int slots);

// How many of a list's entries fit, given how many it has and how many of them, the first ones, are
// pinned. Each band begins a row of its own.
int SlotsThatFit(const RECT& client, int dpi, int pinned, int entries);
