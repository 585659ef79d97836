#include "tests/menu/support/RatingFixture.h"

void RatingTest::StoreList(const std::wstring& list, const std::vector<StoredEntry>& entries)
{
    std::string index;
    for (const StoredEntry& entry : entries)
    {
        for (const int word : {entry.Number, entry.Weight})
        {
            index += static_cast<char>(word & 0xFF);
            index += static_cast<char>(word >> 8);
        }
        SetText(RatingsKey(list), std::to_wstring(entry.Number).c_str(), entry.Name);
    }
    m_hive.SetRaw(RatingsKey(list).c_str(), L"Index", REG_BINARY, index.data(),
                  static_cast<DWORD>(index.size()));
}

std::wstring RatingTest::StoredNames(const std::wstring& list) const
{
    return NamesWith(list, 0);
}

std::wstring RatingTest::PinnedNames(const std::wstring& list) const
{
    return NamesWith(list, 0x8000);
}

std::wstring RatingTest::NamesWith(const std::wstring& list, uint16_t bits) const
{
    const std::string index = m_hive.Raw(RatingsKey(list).c_str(), L"Index");
    std::wstring names;
    for (size_t at = 0; at + 4 <= index.size(); at += 4)
    {
        uint16_t words[2];
        memcpy(words, index.data() + at, sizeof(words));
        if ((words[1] & bits) == bits)
            names += (names.empty() ? L"" : L" ") +
                     Text(RatingsKey(list), std::to_wstring(words[0]).c_str());
    }
    return names;
}

std::vector<StoredEntry> RatingTest::Entries(uint16_t count, uint16_t pinned)
{
    std::vector<StoredEntry> entries;
    for (uint16_t i = 0; i < count; ++i)
        entries.push_back({i, static_cast<uint16_t>((i < pinned ? 0x8000 : 0) + count - i),
                           L"l:\\" + std::to_wstring(i)});
    return entries;
}
