// The device's time: the system's, or a fixed one for pictures that must not change by themselves.
#pragma once

#include <cstdint>
#include <string>

namespace clockwork
{

// From now on it is always the same morning.
void Freeze();

// "10:08", in the user's own manner.
std::wstring TimeText();
// The same of a place on the globe whose clocks are so many seconds east of UTC; with the weekday
// in front where it is another day than here: "Tue 02:08".
std::wstring TimeTextAt(int secondsEast);
// "Monday, 12 June", in the user's own language.
std::wstring DateText();

// Seconds since 1970 began, UTC.
int64_t UtcSeconds();

} // namespace clockwork
