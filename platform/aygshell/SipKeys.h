// The keys of the on-screen keyboard: what they type and where they lie. Plain values, no window.
#pragma once

namespace shell
{

// What a key does besides typing its character.
enum class SipAction
{
    Character,
    Backspace,
    Enter,
    Shift
};

struct SipKey
{
    SipAction Action;
    // What is typed and drawn; the shifted one while Shift is on.
    wchar_t Plain;
    wchar_t Shifted;
    // Where the key lies: its row, and its left and right edge in columns of the row.
    int Row;
    int Left;
    int Right;
};

// The keyboard is a grid of this many rows and (half-key) columns.
constexpr int kSipRows = 5;
constexpr int kSipColumns = 22;

// The number of keys, and the key at an index below it.
int SipKeyCount();
const SipKey& SipKeyAt(int index);

// A key's edges on a keyboard of the given size in pixels.
struct SipKeyBox
{
    int Left;
    int Top;
    int Right;
    int Bottom;
};
SipKeyBox SipKeyPlace(const SipKey& key, int width, int height);

// The index of the key at a point of a keyboard of the given size; -1 beside all keys.
int SipKeyUnder(int x, int y, int width, int height);

} // namespace shell
