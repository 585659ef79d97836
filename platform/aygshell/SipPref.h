// SIPPREF: an invisible control that raises the input panel while an edit control of its dialog
// has the focus. A dialog gets it by naming the class in its template.
#pragma once

#include "platform/Win.h"

namespace shell
{

inline constexpr wchar_t kSipPrefClass[] = L"SIPPREF";

bool RegisterSipPrefClass();

} // namespace shell
