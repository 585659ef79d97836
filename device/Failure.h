// Turning whatever was thrown into a sentence, and showing it: the shell never dies of a dialog.
#pragma once

#include "platform/Win.h"

#include <string>

namespace failure
{

// A sentence about the exception that is being handled; call it from a catch block.
std::wstring DescribeCurrent();

// Shows the sentence in a message box over `owner`.
void Show(HWND owner, const std::wstring& sentence);

} // namespace failure
