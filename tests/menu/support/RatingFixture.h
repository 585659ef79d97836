// Lists in the registry for tests, written and read without the code under test.
#pragma once

#include <string>
#include <vector>

#include "tests/menu/support/MenuFixture.h"

using namespace std::string_literals;

struct StoredEntry
{
    uint16_t Number;
    uint16_t Weight;
    std::wstring Name;
};

class RatingTest : public MenuTest
{
protected:
    void StoreList(const std::wstring& list, const std::vector<StoredEntry>& entries);
    // The names in stored order, separated by blanks.
    std::wstring StoredNames(const std::wstring& list) const;
    // The names of the pinned ones.
    std::wstring PinnedNames(const std::wstring& list) const;
    // "l:\0", "l:\1" ... with falling weights, the first `pinned` of them pinned.
    static std::vector<StoredEntry> Entries(uint16_t count, uint16_t pinned);

private:
    std::wstring NamesWith(const std::wstring& list, uint16_t bits) const;
};
