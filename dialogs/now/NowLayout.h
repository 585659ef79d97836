// Places of the controls of Customize Now Screen, in device pixels of the dialog's client area.
#pragma once

#include "platform/Win.h"

// Where the list goes: as far from the right and lower edge as `list` stands from the left one. Its
// top stays.
RECT NowListPlace(const RECT& client, const RECT& list);

// The width of the list's one column. The scroll bar's room is always left free.
int NowColumnWidth(const RECT& list, int scrollBarWidth);

// Where the text of the empty list goes: over the whole width.
RECT NowEmptyTextPlace(const RECT& client, const RECT& text);
