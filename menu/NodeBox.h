// The check box of a tree node is its state image. Shared by the trees of the dialogs and the scan
// that fills a branch of them.
#pragma once

#include "platform/Win.h"

constexpr UINT kNoBox = 0;
constexpr UINT kUncheckedBox = 1;
constexpr UINT kCheckedBox = 2;
