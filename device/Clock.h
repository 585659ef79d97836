// The device's time: the system's, or a fixed one for pictures that must not change by themselves.
#pragma once

#include <string>

namespace clockwork
{

// From now on it is always the same morning.
void Freeze();

// "10:08", in the user's own manner.
std::wstring TimeText();
// "Monday, 12 June", in the user's own language.
std::wstring DateText();

} // namespace clockwork
