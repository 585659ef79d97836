// How a d-pad moves the selection over areas that stand in no regular grid. Values only.
#pragma once

#include "platform/Win.h"

#include <vector>

// The area that an arrow key leads to from `from`: the nearest one in that direction, preferably in
// the same row or column. Right and left at a row's end lead to the next and the previous area in
// reading order. `from` itself when there is none, and for any other key.
int NeighbourOf(const std::vector<RECT>& areas, int from, WPARAM key);
