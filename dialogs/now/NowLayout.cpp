#include "dialogs/now/NowLayout.h"

#include <algorithm>

RECT NowListPlace(const RECT& client, const RECT& list)
{
    const LONG margin = list.left - client.left;
    return {client.left + margin, list.top, client.right - margin, client.bottom - margin};
}

int NowColumnWidth(const RECT& list, int scrollBarWidth)
{
    // A negative width would ask the list for one of its own choice.
    return std::max(static_cast<int>(list.right - list.left) - scrollBarWidth, 0);
}

RECT NowEmptyTextPlace(const RECT& client, const RECT& text)
{
    return {client.left, text.top, client.right, text.bottom};
}
