// The pseudo-language: English that shows at a glance which texts are translated and whether longer
// ones have room.
#pragma once

#include <string>

namespace translations
{

// The text in brackets, with accents on its letters and at least 40 % longer. Placeholders, line
// ends and outer blanks stay as they are. "%d in use" becomes "[%d íííñ úúséé]".
std::string PseudoText(const std::string& english);

} // namespace translations
