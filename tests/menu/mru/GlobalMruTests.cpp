// The global list as the home dialog uses it: reading it for display, pinning and unpinning.
#include "menu/MenuKeys.h"
#include "menu/Rating.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/RatingFixture.h"

namespace
{

constexpr const wchar_t* kList = L"GlobalMRUList";

class GlobalMru : public RatingTest
{
protected:
    static bool Pin(const wchar_t* path)
    {
        return SetGlobalPinned(true, path, Ratings::TargetKind::Link, INFINITE);
    }
    static bool Unpin(const wchar_t* path)
    {
        return SetGlobalPinned(false, path, Ratings::TargetKind::Link, INFINITE);
    }
    static Ratings::CMruSlots Read(uint32_t count)
    {
        Ratings::CMruSlots slots;
        EXPECT_TRUE(ReadGlobalMru(slots, count));
        return slots;
    }
    static std::wstring Shown(const Ratings::CMruSlots& slots)
    {
        std::wstring names;
        for (const std::wstring& name : slots.Names)
            names += (names.empty() ? L"" : L" ") + name;
        return names;
    }
    std::string Layout() const { return m_hive.Raw(RatingsKey(kList).c_str(), L"Layout"); }
    void SetLayout(const std::string& bytes)
    {
        m_hive.SetRaw(RatingsKey(kList).c_str(), L"Layout", REG_BINARY, bytes.data(),
                      static_cast<DWORD>(bytes.size()));
    }
};

// Pinning.

TEST_F(GlobalMru, PinningIntoAnEmptyRegistryCreatesTheList)
{
    EXPECT_TRUE(Pin(L"\\a.lnk"));
    EXPECT_EQ(L"\\GlobalMRUList\n"
              L"\\GlobalMRUList|0=l:\\a.lnk\n"
              L"\\GlobalMRUList|Index=00000080\n"
              L"\\GlobalMRUList|Timestamp=01000000\n",
              m_hive.Dump(kRatingsRootPath));
}

TEST_F(GlobalMru, ANewNameIsPinnedAboveEveryUnpinnedEntry)
{
    StoreList(kList, Entries(4, 1));
    EXPECT_TRUE(Pin(L"\\new"));
    EXPECT_EQ(L"l:\\0 l:\\new l:\\1 l:\\2 l:\\3", StoredNames(kList));
    EXPECT_EQ(L"l:\\0 l:\\new", PinnedNames(kList));
}

TEST_F(GlobalMru, PinningAPinnedEntryChangesNothingButTheTimestamp)
{
    StoreList(kList, Entries(4, 2));
    SetDword(RatingsKey(kList), L"Timestamp", 7);
    std::wstring expected = Dump();
    expected.replace(expected.find(L"Timestamp=07"), 12, L"Timestamp=08");
    EXPECT_TRUE(Pin(L"\\1"));
    EXPECT_EQ(expected, Dump());
}

TEST_F(GlobalMru, NamesAreMatchedIgnoringCase)
{
    StoreList(kList, {{4, 9, L"L:\\Programs\\A.LNK"}});
    EXPECT_TRUE(Pin(L"\\programs\\a.lnk"));
    EXPECT_EQ(L"L:\\Programs\\A.LNK", PinnedNames(kList));
    EXPECT_TRUE(Unpin(L"\\PROGRAMS\\a.lnk"));
    EXPECT_EQ(L"", PinnedNames(kList));
    EXPECT_EQ(L"L:\\Programs\\A.LNK", StoredNames(kList));
}

TEST_F(GlobalMru, UnpinningMovesTheEntryBehindGreaterWeights)
{
    StoreList(kList, {{0, 0x8001, L"a"}, {1, 0x8002, L"b"}, {2, 5, L"c"}});
    EXPECT_TRUE(SetGlobalPinned(false, L"x", Ratings::TargetKind::Link, INFINITE));
    EXPECT_EQ(L"a b c", StoredNames(kList));
    StoreList(kList, {{0, 0x8001, L"l:a"}, {1, 0x8002, L"b"}, {2, 5, L"c"}});
    EXPECT_TRUE(Unpin(L"a"));
    EXPECT_EQ(L"b c l:a", StoredNames(kList));
}

TEST_F(GlobalMru, UnpinningAMissingNameStillSaves)
{
    EXPECT_TRUE(Unpin(L"\\a"));
    EXPECT_EQ(1u, Dword(RatingsKey(kList), L"Timestamp"));
    EXPECT_EQ(L"", StoredNames(kList));
}

// Entry names.

TEST_F(GlobalMru, AMenuIsEnteredByItsKeyPathWithTheLeadingBackslash)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    EXPECT_TRUE(SetGlobalPinned(true, Product(L"\\Games"), Ratings::TargetKind::Menu, INFINITE));
    EXPECT_EQ(L"m:" + Product(L"\\Games"), StoredNames(kList));
}

TEST_F(GlobalMru, AMenuItemWhoseFileIsAShortcutIsEnteredAsThatFile)
{
    SetText(Custom(L"\\User 1"), kFileValue, L"\\Programs\\a.LNK");
    EXPECT_TRUE(SetGlobalPinned(true, Custom(L"\\User 1"), Ratings::TargetKind::Menu, INFINITE));
    EXPECT_EQ(L"l:\\Programs\\a.LNK", StoredNames(kList));
}

TEST_F(GlobalMru, AShortcutHasAtLeastFiveCharacters)
{
    SetText(Custom(L"\\User 1"), kFileValue, L".lnk");
    SetText(Custom(L"\\User 2"), kFileValue, L"a.lnk");
    SetGlobalPinned(true, Custom(L"\\User 1"), Ratings::TargetKind::Menu, INFINITE);
    EXPECT_EQ(L"m:" + Custom(L"\\User 1"), StoredNames(kList));
    SetGlobalPinned(true, Custom(L"\\User 2"), Ratings::TargetKind::Menu, INFINITE);
    EXPECT_EQ(L"m:" + Custom(L"\\User 1") + L" l:a.lnk", StoredNames(kList));
}

TEST_F(GlobalMru, AMenuItemWhoseFileIsAProgramIsEnteredByItsKeyPath)
{
    SetText(Custom(L"\\User 1"), kFileValue, L"\\Windows\\a.exe");
    SetGlobalPinned(true, Custom(L"\\User 1"), Ratings::TargetKind::Menu, INFINITE);
    EXPECT_EQ(L"m:" + Custom(L"\\User 1"), StoredNames(kList));
}

TEST_F(GlobalMru, TheFileIsReadAtTheItemsOwnKeyNotAtItsMirror)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    SetText(Custom(L"\\Games"), kFileValue, L"\\a.lnk");
    SetGlobalPinned(true, Product(L"\\Games"), Ratings::TargetKind::Menu, INFINITE);
    EXPECT_EQ(L"m:" + Product(L"\\Games"), StoredNames(kList));
}

TEST_F(GlobalMru, ALinksPathIsTakenAsItIs)
{
    Pin(L"\\Windows\\a.exe");
    EXPECT_EQ(L"l:\\Windows\\a.exe", StoredNames(kList));
}

// Display.

TEST_F(GlobalMru, AMissingListHasNoSlotsAndReadingWritesNothing)
{
    const Ratings::CMruSlots slots = Read(8);
    EXPECT_TRUE(slots.Names.empty());
    EXPECT_EQ(0u, slots.Pinned);
    EXPECT_EQ(L"", Dump());
}

TEST_F(GlobalMru, WithoutLayoutEachBandFillsFromItsEndAndTheLayoutIsStored)
{
    StoreList(kList, Entries(5, 2));
    const Ratings::CMruSlots slots = Read(5);
    EXPECT_EQ(L"l:\\1 l:\\0 l:\\4 l:\\3 l:\\2", Shown(slots));
    EXPECT_EQ(2u, slots.Pinned);
    EXPECT_EQ("\1\0\0\0\4\0\3\0\2\0"s, Layout());
}

TEST_F(GlobalMru, AStoredLayoutIsFollowedAndNotRewritten)
{
    StoreList(kList, Entries(4, 1));
    SetLayout("\0\0\2\0\1\0\3\0"s);
    const unsigned before = os::CountedRegistryCalls().set;
    EXPECT_EQ(L"l:\\0 l:\\2 l:\\1 l:\\3", Shown(Read(4)));
    EXPECT_EQ(before, os::CountedRegistryCalls().set);
}

TEST_F(GlobalMru, AnEntryThatLeftThePinnedBandIsPlacedAnewAndTheLayoutRewritten)
{
    StoreList(kList, Entries(3, 1));
    SetLayout("\1\0\0\0\2\0"s);
    EXPECT_EQ(L"l:\\0 l:\\1 l:\\2", Shown(Read(3)));
    EXPECT_EQ("\0\0\1\0\2\0"s, Layout());
}

TEST_F(GlobalMru, OnlyTheFirstEntriesAreShown)
{
    StoreList(kList, Entries(9, 3));
    const Ratings::CMruSlots slots = Read(2);
    EXPECT_EQ(2u, slots.Names.size());
    EXPECT_EQ(2u, slots.Pinned);
    EXPECT_TRUE(Read(0).Names.empty());
    EXPECT_EQ(9u, Read(0xFFFFFFFF).Names.size());
}

TEST_F(GlobalMru, ReadingDoesNotTouchTheListItself)
{
    StoreList(kList, Entries(9, 3));
    Read(9);
    EXPECT_FALSE(m_hive.ValueExists(RatingsKey(kList).c_str(), L"Timestamp"));
}

TEST_F(GlobalMru, ANameIsPinnedWhenItsSlotIsInThePinnedBand)
{
    StoreList(kList, Entries(4, 2));
    const Ratings::CMruSlots slots = Read(4);
    EXPECT_TRUE(slots.IsPinned(L"l:\\0"));
    EXPECT_TRUE(slots.IsPinned(L"L:\\1"));
    EXPECT_FALSE(slots.IsPinned(L"l:\\2"));
    EXPECT_FALSE(slots.IsPinned(L"l:\\9"));
}

TEST_F(GlobalMru, AnUnpinnedEntryBeforeAPinnedOneTakesAPinnedSlot)
{
    StoreList(kList, {{0, 7, L"a"}, {1, 0x8001, L"b"}, {2, 5, L"c"}});
    const Ratings::CMruSlots slots = Read(3);
    EXPECT_EQ(1u, slots.Pinned);
    EXPECT_TRUE(slots.IsPinned(L"a"));
    EXPECT_FALSE(slots.IsPinned(L"b"));
}

// Registry calls.

class GlobalMruCalls : public GlobalMru, public testing::WithParamInterface<uint16_t>
{
protected:
    template <class Operation>
    static unsigned CallsOf(Operation&& operation)
    {
        const unsigned before = os::CountedRegistryCalls().Total();
        EXPECT_TRUE(operation());
        return os::CountedRegistryCalls().Total() - before;
    }
};

TEST_P(GlobalMruCalls, PinningAKnownEntryTakesTheListsLengthAndSixMore)
{
    StoreList(kList, Entries(GetParam(), 3));
    EXPECT_EQ(GetParam() + 6u, CallsOf([] { return Pin(L"\\5"); }));
    EXPECT_EQ(GetParam() + 6u, CallsOf([] { return Unpin(L"\\5"); }));
}

TEST_P(GlobalMruCalls, PinningANewEntryTakesOneCallMoreForItsName)
{
    StoreList(kList, Entries(GetParam(), 3));
    EXPECT_EQ(GetParam() + 7u, CallsOf([] { return Pin(L"\\new"); }));
}

TEST_P(GlobalMruCalls, PinningAKnownEntryWritesTwoValues)
{
    StoreList(kList, Entries(GetParam(), 3));
    const unsigned before = os::CountedRegistryCalls().set;
    Pin(L"\\5");
    EXPECT_EQ(2u, os::CountedRegistryCalls().set - before);
}

INSTANTIATE_TEST_SUITE_P(Lengths, GlobalMruCalls, testing::Values(20, 200),
                         testing::PrintToStringParamName());

} // namespace
