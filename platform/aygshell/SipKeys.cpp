#include "platform/aygshell/SipKeys.h"

#include <array>

namespace shell
{

namespace
{

constexpr SipKey Typing(int row, int left, wchar_t plain, wchar_t shifted)
{
    return {SipAction::Character, plain, shifted, row, left, left + 2};
}

// One row of characters from a column on, each two columns wide.
struct Row
{
    int Number;
    int Left;
    const wchar_t* Plain;
    const wchar_t* Shifted;
};

constexpr Row kRows[] = {
    {0, 0, L"1234567890", L"!@#$%^&*()"},
    {1, 0, L"qwertyuiop-", L"QWERTYUIOP_"},
    {2, 0, L"asdfghjkl", L"ASDFGHJKL"},
    {3, 4, L"zxcvbnm,.", L"ZXCVBNM;:"},
};

constexpr SipKey kSpecialKeys[] = {
    {SipAction::Backspace, 0, 0, 0, 20, 22},
    {SipAction::Enter, 0, 0, 2, 18, 22},
    {SipAction::Shift, 0, 0, 3, 0, 4},
    {SipAction::Character, L'\'', L'"', 4, 0, 2},
    {SipAction::Character, L'/', L'?', 4, 2, 4},
    {SipAction::Character, L' ', L' ', 4, 4, 18},
    {SipAction::Character, L'=', L'+', 4, 18, 20},
    {SipAction::Character, L'\\', L'|', 4, 20, 22},
};

constexpr int CountCharacters()
{
    int count = 0;
    for (const Row& row : kRows)
        for (const wchar_t* text = row.Plain; *text != 0; ++text)
            ++count;
    return count;
}

constexpr int kCharacters = CountCharacters();
constexpr int kSpecials = sizeof kSpecialKeys / sizeof *kSpecialKeys;

constexpr std::array<SipKey, kCharacters + kSpecials> MakeKeys()
{
    std::array<SipKey, kCharacters + kSpecials> keys{};
    std::size_t count = 0;
    for (const Row& row : kRows)
        for (int i = 0; row.Plain[i] != 0; ++i)
            keys[count++] = Typing(row.Number, row.Left + 2 * i, row.Plain[i], row.Shifted[i]);
    for (const SipKey& key : kSpecialKeys)
        keys[count++] = key;
    return keys;
}

constexpr auto kKeys = MakeKeys();

} // namespace

int SipKeyCount()
{
    return static_cast<int>(kKeys.size());
}

const SipKey& SipKeyAt(int index)
{
    return kKeys.at(static_cast<std::size_t>(index));
}

SipKeyBox SipKeyPlace(const SipKey& key, int width, int height)
{
    return {width * key.Left / kSipColumns, height * key.Row / kSipRows,
            width * key.Right / kSipColumns, height * (key.Row + 1) / kSipRows};
}

int SipKeyUnder(int x, int y, int width, int height)
{
    for (int index = 0; index < SipKeyCount(); ++index)
    {
        const SipKeyBox box = SipKeyPlace(SipKeyAt(index), width, height);
        if (x >= box.Left && x < box.Right && y >= box.Top && y < box.Bottom)
            return index;
    }
    return -1;
}

} // namespace shell
