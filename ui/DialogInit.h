// Initial entries of list and combo boxes, from a dialog's dialog-init resource.
#pragma once

#include "platform/Win.h"

#include <cstddef>
#include <cstdint>
#include <functional>

// One entry: the text of a list or combo box item, as bytes of the ANSI code page.
struct DialogInitEntry
{
    uint16_t control;
    uint16_t message;
    const char* text;
    size_t length;
};

// Walks the records of a dialog-init resource: control, message, length, bytes; a control of 0 ends
// them, and so does a record that isn't whole. `take` returns false to stop.
void ForEachDialogInitEntry(const uint8_t* data, size_t size,
                            const std::function<bool(const DialogInitEntry&)>& take);

// Adds the entries of the resource `id` (type 240) to the dialog's boxes. A missing resource is no
// error; entries for anything but adding a string are skipped; the first failed add ends it.
void RunDialogInit(HWND dialog, UINT id);
