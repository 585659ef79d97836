// Rating lists in the registry: reading, saving, layout hints.
#include "menu/Rating.h"

#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/RatingFixture.h"

namespace
{

class Rating : public RatingTest
{
protected:
    std::wstring Names(const Ratings::CRating& list)
    {
        std::wstring names;
        for (const Ratings::CEntry& entry : list.Entries)
            names += (names.empty() ? L"" : L" ") + entry.Name;
        return names;
    }
};

TEST_F(Rating, AMissingListIsEmptyAndReadingItCreatesNothing)
{
    EXPECT_TRUE(Ratings::CRating(L"List").Entries.empty());
    CreateKey(RatingsKey(L"List"));
    EXPECT_TRUE(Ratings::CRating(L"List").Entries.empty());
    EXPECT_EQ(L"\\List\n", m_hive.Dump(kRatingsRootPath));
}

TEST_F(Rating, EntriesComeInStoredOrderWithTheNamesOfTheirNumbers)
{
    StoreList(L"List", {{7, 0x8001, L"l:\\b"}, {40000, 3, L"m:\\a"}});
    const Ratings::CRating list(L"List");
    ASSERT_EQ(L"l:\\b m:\\a", Names(list));
    EXPECT_EQ(7, list.Entries[0].Number);
    EXPECT_EQ(0x8001, list.Entries[0].Weight);
    EXPECT_EQ(40000, list.Entries[1].Number);
}

TEST_F(Rating, AnIndexOfSixBytesIsOneEntry)
{
    const BYTE data[6] = {7, 0, 1, 0, 8, 0};
    m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Index", REG_BINARY, data, 6);
    SetText(RatingsKey(L"List"), L"7", L"l:\\a");
    EXPECT_EQ(L"l:\\a", Names(Ratings::CRating(L"List")));
}

TEST_F(Rating, AnIndexOfUpToSevenBytesOrNoneIsReadInWholePairs)
{
    const BYTE data[8] = {7, 0, 1, 0, 8, 0, 1, 0};
    for (DWORD size = 0; size <= 8; ++size)
    {
        m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Index", REG_BINARY, data, size);
        EXPECT_EQ(size / 4, Ratings::CRating(L"List").Entries.size()) << size;
    }
}

TEST_F(Rating, AnIndexOfAnotherTypeIsReadAsItStands)
{
    SetDword(RatingsKey(L"List"), L"Index", 0x00050007);
    const Ratings::CRating list(L"List");
    ASSERT_EQ(1u, list.Entries.size());
    EXPECT_EQ(7, list.Entries[0].Number);
    EXPECT_EQ(5, list.Entries[0].Weight);
}

TEST_F(Rating, AMissingOrForeignNameIsEmptyAndNotCreated)
{
    StoreList(L"List", {{1, 5, L"x"}, {2, 4, L"y"}});
    SetDword(RatingsKey(L"List"), L"2", 9);
    HKEY key = nullptr;
    os::OpenKey(HKEY_LOCAL_MACHINE, RatingsKey(L"List").c_str(), 0, &key);
    os::DeleteValue(key, L"1");
    os::CloseKey(key);
    const std::wstring before = Dump();
    const Ratings::CRating list(L"List");
    ASSERT_EQ(2u, list.Entries.size());
    EXPECT_EQ(L"", list.Entries[0].Name);
    EXPECT_EQ(L"", list.Entries[1].Name);
    EXPECT_EQ(before, Dump());
}

TEST_F(Rating, ANameOfAnyLengthIsRead)
{
    const std::wstring name = L"l:" + std::wstring(100000, L'x');
    StoreList(L"List", {{1, 5, name}});
    EXPECT_EQ(name, Ratings::CRating(L"List").Entries.at(0).Name);
}

TEST_F(Rating, AnIndexOfMoreThanAMegabyteIsReadWithoutItsNames)
{
    const std::vector<BYTE> data(1024 * 1024 + 4, 3);
    m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Index", REG_BINARY, data.data(),
                  static_cast<DWORD>(data.size()));
    EXPECT_EQ(262145u, Ratings::CRating(L"List").Entries.size());
}

TEST_F(Rating, SavingWritesIndexNamesAndTimestampAndNothingElse)
{
    Ratings::CRating list(L"List");
    list.Pin(L"l:\\a");
    list.Pin(L"l:\\b");
    list.Save(false);
    EXPECT_EQ(L"\\List\n"
              L"\\List|0=l:\\a\n"
              L"\\List|1=l:\\b\n"
              L"\\List|Index=0000008001000080\n"
              L"\\List|Timestamp=01000000\n",
              m_hive.Dump(kRatingsRootPath));
}

TEST_F(Rating, SavingWritesTheNamesOfNewEntriesOnly)
{
    StoreList(L"List", {{0, 5, L"l:\\a"}, {2, 4, L"l:\\c"}});
    Ratings::CRating list(L"List");
    // A changed name shows whether it is written again.
    SetText(RatingsKey(L"List"), L"0", L"changed");
    list.Pin(L"l:\\n");
    list.Save(false);
    EXPECT_EQ(L"changed", Text(RatingsKey(L"List"), L"0"));
    EXPECT_EQ(L"l:\\n", Text(RatingsKey(L"List"), L"1")) << "the smallest free number";
    EXPECT_EQ(L"l:\\n changed l:\\c", StoredNames(L"List"));
}

TEST_F(Rating, EverySaveCountsTheTimestampUpAndRoundItsEnd)
{
    Ratings::CRating list(L"List");
    list.Save(false);
    EXPECT_EQ(1u, Dword(RatingsKey(L"List"), L"Timestamp"));
    SetDword(RatingsKey(L"List"), L"Timestamp", 41);
    list.Save(false);
    EXPECT_EQ(42u, Dword(RatingsKey(L"List"), L"Timestamp"));
    SetDword(RatingsKey(L"List"), L"Timestamp", 0xFFFFFFFF);
    list.Save(false);
    EXPECT_EQ(0u, Dword(RatingsKey(L"List"), L"Timestamp"));
}

TEST_F(Rating, AnEmptyListIsSavedAsAnIndexWithoutBytes)
{
    StoreList(L"List", {{0, 5, L"l:\\a"}});
    Ratings::CRating list(L"List");
    list.Entries.clear();
    list.Save(false);
    EXPECT_TRUE(m_hive.ValueExists(RatingsKey(L"List").c_str(), L"Index"));
    EXPECT_EQ("", m_hive.Raw(RatingsKey(L"List").c_str(), L"Index"));
}

TEST_F(Rating, SavingTrimsUnusedEntriesFromALongList)
{
    std::vector<StoredEntry> entries;
    for (uint16_t i = 0; i < 25; ++i)
        entries.push_back({i, static_cast<uint16_t>(i < 21 ? 10 : i == 21 ? 4 : 0), L"l:\\x"});
    StoreList(L"List", entries);
    Ratings::CRating(L"List").Save(false);
    EXPECT_EQ(22u, Ratings::CRating(L"List").Entries.size());
}

TEST_F(Rating, AnEntryStoredWithTheNumberOfANewOneGetsANumber)
{
    StoreList(L"List", {{0xFFFF, 5, L"l:\\a"}, {0, 4, L"l:\\b"}});
    Ratings::CRating(L"List").Save(false);
    EXPECT_EQ(L"l:\\a l:\\b", StoredNames(L"List"));
    EXPECT_EQ(L"l:\\a", Text(RatingsKey(L"List"), L"1"));
}

TEST_F(Rating, EntriesThatShareANumberAreKept)
{
    StoreList(L"List", {{3, 5, L"l:\\a"}, {3, 4, L"l:\\a"}});
    Ratings::CRating(L"List").Save(false);
    EXPECT_EQ("\x03\0\x05\0\x03\0\x04\0"s, m_hive.Raw(RatingsKey(L"List").c_str(), L"Index"));
}

TEST_F(Rating, WhenAllNumbersAreUsedANewEntryIsLeftOut)
{
    Ratings::CRating list(L"List");
    for (uint32_t number = 0; number < 0xFFFF; ++number)
        list.Entries.push_back({L"", static_cast<uint16_t>(number), 1});
    list.Pin(L"l:\\new");
    list.Save(false);
    EXPECT_EQ(0xFFFFu * 4, m_hive.Raw(RatingsKey(L"List").c_str(), L"Index").size());
    EXPECT_FALSE(m_hive.ValueExists(RatingsKey(L"List").c_str(), L"65535"));
}

TEST_F(Rating, AnExplicitFlushIsMadeOnlyWhenAskedFor)
{
    Ratings::CRating list(L"List");
    const unsigned before = os::CountedRegistryCalls().flush;
    list.Save(false);
    EXPECT_EQ(before, os::CountedRegistryCalls().flush);
    list.Save(true);
    EXPECT_EQ(before + 1, os::CountedRegistryCalls().flush);
}

TEST_F(Rating, AKeyThatCannotBeWrittenLeavesTheListAsItWas)
{
    // A name that long can't be a key.
    Ratings::CRating list(std::wstring(300, L'x'));
    list.Pin(L"l:\\a");
    list.Save(false);
    EXPECT_EQ(Ratings::kNoNumber, list.Entries.at(0).Number);
}

// Layout hints.

TEST_F(Rating, HintsNeedAListAndAName)
{
    const boost::shared_ptr<Ratings::CRating> list(new Ratings::CRating(L"List"));
    EXPECT_EQ(kTavInvalidArgument,
              CodeThrownBy([] { Ratings::CLayoutHints(boost::shared_ptr<Ratings::CRating>()); }));
    EXPECT_EQ(kTavInvalidArgument, CodeThrownBy([&] { Ratings::CLayoutHints(list, L""); }));
    EXPECT_EQ(L"Layout", Ratings::CLayoutHints(list).ValueName);
}

TEST_F(Rating, HintsAreReadFromTheListsKeyWhenTheirByteCountIsEven)
{
    const boost::shared_ptr<Ratings::CRating> list(new Ratings::CRating(L"List"));
    EXPECT_TRUE(Ratings::CLayoutHints(list).Slots.empty());
    const BYTE data[] = {1, 0, 0xFF, 0x80, 9};
    m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Layout", REG_BINARY, data, 4);
    EXPECT_EQ((std::vector<uint16_t>{1, 0x80FF}), Ratings::CLayoutHints(list).Slots);
    m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Layout", REG_BINARY, data, 5);
    EXPECT_TRUE(Ratings::CLayoutHints(list).Slots.empty());
}

TEST_F(Rating, HintsAreWrittenAsTheyAreRead)
{
    const boost::shared_ptr<Ratings::CRating> list(new Ratings::CRating(L"List"));
    Ratings::CLayoutHints hints(list);
    hints.Slots = {5, 0x1234};
    hints.Save();
    EXPECT_EQ(L"\\List\n\\List|Layout=05003412\n", m_hive.Dump(kRatingsRootPath));
}

TEST_F(Rating, HintsOfAMegabyteAreRead)
{
    const std::vector<BYTE> data(1024 * 1024, 1);
    m_hive.SetRaw(RatingsKey(L"List").c_str(), L"Layout", REG_BINARY, data.data(),
                  static_cast<DWORD>(data.size()));
    const boost::shared_ptr<Ratings::CRating> list(new Ratings::CRating(L"List"));
    EXPECT_EQ(524288u, Ratings::CLayoutHints(list).Slots.size());
}

} // namespace
