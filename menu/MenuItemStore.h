// The names that new keys of the user's items and rating lists get.
#pragma once

#include <string>

// Takes the next free "User %d" and counts it in the registry; the first one is "User 1".
std::wstring NewUserKeyName();
