// The places in a text where the program puts a value: "%s" for a text, "%d" for a number.
#pragma once

#include <string>
#include <string_view>

namespace translations
{

// They in their order, as "%d %s"; "%%" is a percent sign and none of them. A percent sign at the
// end of the text counts as one.
std::string Placeholders(std::string_view text);

} // namespace translations
