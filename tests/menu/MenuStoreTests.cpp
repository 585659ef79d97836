// The persisted attributes of an item: which values are read and written, in which layer, and which
// operations create the customisation key.
#include "menu/MenuItemStore.h"

#include <string>

#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

// One built-in menu "Games", one shared one "Tools", one user menu "Mine".
class MenuStore : public MenuTest
{
protected:
    MenuStore()
    {
        AddProductMenu(L"\\Games", L"Games", 0);
        SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
        AddUserItem(L"\\User 7", L"Mine", 1);
        m_tree.Load();
        m_games = ItemOf(m_tree, L"Games");
        m_tools = ItemOf(m_tree, L"Tools");
        m_mine = ItemOf(m_tree, L"Mine");
        m_before = Dump();
    }

    // What the registry has now and had not before, as sorted lines; lines that went are marked
    // "-".
    std::wstring Changes() const
    {
        const std::wstring now = Dump();
        return LinesMissingIn(now, m_before, L"") + LinesMissingIn(m_before, now, L"-");
    }

    static std::wstring LinesMissingIn(const std::wstring& lines, const std::wstring& other,
                                       const wchar_t* mark)
    {
        std::wstring missing;
        for (size_t begin = 0; begin < lines.size();)
        {
            const size_t end = lines.find(L'\n', begin) + 1;
            const std::wstring line = lines.substr(begin, end - begin);
            if ((L"\n" + other).find(L"\n" + line) == std::wstring::npos)
                missing += mark + line;
            begin = end;
        }
        return missing;
    }

    // How Dump shows a line about the customisation layer.
    static std::wstring CustomLine(const std::wstring& rest)
    {
        return L"\\Orvane\\Shared\\Tav Menu\\Customize" + rest + L"\n";
    }

    CMenuTree m_tree{false};
    CMenuItemPtr m_games, m_tools, m_mine;
    std::wstring m_before;
};

TEST_F(MenuStore, TheFirstUserKeyNameIsUser1AndIsCounted)
{
    EXPECT_EQ(L"User 1", NewUserKeyName());
    EXPECT_EQ(1u, Dword(Custom(L""), kLastKeyValue));
    EXPECT_EQ(L"User 2", NewUserKeyName());
    EXPECT_EQ(2u, Dword(Custom(L""), kLastKeyValue));
}

TEST_F(MenuStore, TheCustomisationRootIsCreatedForTheFirstKeyName)
{
    os::DeleteKeyTree(HKEY_LOCAL_MACHINE, L"SOFTWARE");
    EXPECT_EQ(L"User 1", NewUserKeyName());
    EXPECT_EQ(1u, Dword(Custom(L""), kLastKeyValue));
}

TEST_F(MenuStore, KeyNamesCountRoundTheEndsOfTheNumberRange)
{
    SetDword(Custom(L""), kLastKeyValue, 0xFFFFFFFF);
    EXPECT_EQ(L"User 0", NewUserKeyName());
    EXPECT_EQ(0u, Dword(Custom(L""), kLastKeyValue));
    SetDword(Custom(L""), kLastKeyValue, 0x7FFFFFFF);
    EXPECT_EQ(L"User -2147483648", NewUserKeyName());
    EXPECT_EQ(0x80000000u, Dword(Custom(L""), kLastKeyValue));
}

TEST_F(MenuStore, HidingAnItemCreatesItsMirrorKey)
{
    m_games->SetInactive(true);
    EXPECT_TRUE(m_games->Inactive);
    EXPECT_EQ(CustomLine(L"\\Games") + CustomLine(L"\\Games|Inactive=01000000"), Changes());
    m_games->SetInactive(false);
    EXPECT_FALSE(m_games->Inactive);
    EXPECT_EQ(0u, Dword(Custom(L"\\Games"), kInactiveValue));
}

TEST_F(MenuStore, HidingASharedItemWritesToTheCustomisationLayer)
{
    m_tools->SetInactive(true);
    EXPECT_EQ(CustomLine(L"\\Tools") + CustomLine(L"\\Tools|Inactive=01000000"), Changes());
}

TEST_F(MenuStore, HidingAUserItemWritesToItsOwnKey)
{
    m_mine->SetInactive(true);
    EXPECT_EQ(CustomLine(L"\\User 7|Inactive=01000000"), Changes());
}

TEST_F(MenuStore, CreatingOperationsFlushAndPlainOnesDoNot)
{
    const auto flushesOf = [](auto&& operation)
    {
        const unsigned before = os::CountedRegistryCalls().flush;
        operation();
        return os::CountedRegistryCalls().flush - before;
    };
    EXPECT_EQ(1u, flushesOf([&] { m_games->SetInactive(true); }));
    EXPECT_EQ(1u, flushesOf([&] { m_games->SetDrawType(MenuDrawType::Grid); }));
    EXPECT_EQ(1u, flushesOf([&] { m_games->SetRtFlags(1); }));
    EXPECT_EQ(1u, flushesOf([&] { m_games->SetRated(false); }));
    EXPECT_EQ(2u, flushesOf([&] { m_games->SetRated(true); })) << "the mirror and the counter";
    EXPECT_EQ(1u, flushesOf(
                      [&]
                      {
                          m_tree.Root->Move(true, true);
                          m_tree.Root->Renumber();
                      }))
        << "only Tools stands at another place than its number";
    EXPECT_EQ(1u, flushesOf([&] { NewUserKeyName(); }));
    EXPECT_EQ(0u, flushesOf([&] { m_mine->SetText(L"New"); }));
    EXPECT_EQ(0u, flushesOf([&] { m_mine->SetImage(5); }));
}

TEST_F(MenuStore, RenamingAnItemWithoutMirrorKeyChangesMemoryOnly)
{
    m_games->SetText(L"New");
    EXPECT_EQ(L"New", m_games->Text);
    EXPECT_EQ(L"", Changes());
}

TEST_F(MenuStore, RenamingWritesToAMirrorKeyThatExists)
{
    m_mine->SetText(L"New");
    EXPECT_EQ(CustomLine(L"\\User 7|Text=New") + L"-" + CustomLine(L"\\User 7|Text=Mine"),
              Changes());
    CreateKey(Custom(L"\\Games"));
    m_games->SetText(L"Spiele");
    EXPECT_EQ(L"Spiele", Text(Custom(L"\\Games"), kTextValue));
}

TEST_F(MenuStore, AnItemWithoutIconNumberHasMinusOne)
{
    EXPECT_EQ(kNoImage, m_games->GetImage());
    EXPECT_EQ(kNoImage, m_mine->GetImage());
    EXPECT_EQ(L"", Changes());
}

TEST_F(MenuStore, AnIconNumberIsWrittenToAnExistingMirrorKeyOnly)
{
    m_games->SetImage(120);
    EXPECT_EQ(L"", Changes());
    m_mine->SetImage(120);
    EXPECT_EQ(120, m_mine->GetImage());
    EXPECT_EQ(120u, Dword(Custom(L"\\User 7"), kImageValue));
}

TEST_F(MenuStore, AnIconNumberOfMinusOneDeletesTheValue)
{
    m_mine->SetImage(120);
    m_mine->SetImage(kNoImage);
    EXPECT_FALSE(m_hive.ValueExists(Custom(L"\\User 7").c_str(), kImageValue));
    EXPECT_EQ(L"", Changes());
}

TEST_F(MenuStore, TheIconIsReadFromTheMirrorNotFromTheBuiltInKey)
{
    SetDword(Product(L"\\Games"), kImageValue, 101);
    EXPECT_EQ(kNoImage, m_games->GetImage());
    SetDword(Custom(L"\\Games"), kImageValue, 102);
    EXPECT_EQ(102, m_games->GetImage());
}

TEST_F(MenuStore, FileAndImagePathAreReadFromTheMirrorOrEmpty)
{
    SetText(Product(L"\\Games"), kFileValue, L"\\a");
    EXPECT_EQ(L"", m_games->GetFile());
    EXPECT_EQ(L"", m_games->GetImagePath());
    SetText(Custom(L"\\Games"), kFileValue, L"\\b");
    SetText(Custom(L"\\Games"), kImagePathValue, L"\\c,1");
    EXPECT_EQ(L"\\b", m_games->GetFile());
    EXPECT_EQ(L"\\c,1", m_games->GetImagePath());
}

TEST_F(MenuStore, ReadingAttributesWritesNothing)
{
    for (const CMenuItemPtr& item : {m_games, m_tools, m_mine, m_tree.Root})
    {
        item->GetImage();
        item->GetImagePath();
        item->GetFile();
        item->GetDrawType();
        item->GetRtFlags();
        item->IsUserItem();
        item->CanAdd();
    }
    EXPECT_EQ(L"", Changes());
}

// How a menu is drawn.

TEST_F(MenuStore, AMenuWithoutDrawTypeIsAList)
{
    EXPECT_EQ(MenuDrawType::List, m_games->GetDrawType());
}

TEST_F(MenuStore, GridIsRecognisedIgnoringCaseAndAnythingElseIsAList)
{
    SetText(Product(L"\\Games"), kDrawTypeValue, L"gRID");
    EXPECT_EQ(MenuDrawType::Grid, m_games->GetDrawType());
    SetText(Product(L"\\Games"), kDrawTypeValue, L"Grid2");
    EXPECT_EQ(MenuDrawType::List, m_games->GetDrawType());
    SetText(Product(L"\\Games"), kDrawTypeValue, L"List");
    EXPECT_EQ(MenuDrawType::List, m_games->GetDrawType());
}

TEST_F(MenuStore, ACustomisedDrawTypeHidesTheBuiltInOneUnlessItIsEmpty)
{
    SetText(Product(L"\\Games"), kDrawTypeValue, L"Grid");
    SetText(Custom(L"\\Games"), kDrawTypeValue, L"List");
    EXPECT_EQ(MenuDrawType::List, m_games->GetDrawType());
    SetText(Custom(L"\\Games"), kDrawTypeValue, L"");
    EXPECT_EQ(MenuDrawType::Grid, m_games->GetDrawType());
}

TEST_F(MenuStore, ASharedMenuHasADrawTypeOfItsOwn)
{
    SetText(Shared(L"\\Tools"), kDrawTypeValue, L"Grid");
    EXPECT_EQ(MenuDrawType::Grid, m_tools->GetDrawType());
}

TEST_F(MenuStore, SettingTheDrawTypeCreatesTheMirrorKey)
{
    m_games->SetDrawType(MenuDrawType::Grid);
    EXPECT_EQ(CustomLine(L"\\Games") + CustomLine(L"\\Games|DrawType=Grid"), Changes());
    m_games->SetDrawType(MenuDrawType::List);
    EXPECT_EQ(L"List", Text(Custom(L"\\Games"), kDrawTypeValue));
    m_games->SetDrawType(static_cast<MenuDrawType>(7));
    EXPECT_EQ(L"List", Text(Custom(L"\\Games"), kDrawTypeValue));
}

// Rating flags.

TEST_F(MenuStore, FlagsComeFromTheMirrorThenFromTheBuiltInKeyThenAreZero)
{
    EXPECT_EQ(0u, m_games->GetRtFlags());
    SetDword(Product(L"\\Games"), kRtFlagsValue, 3);
    EXPECT_EQ(3u, m_games->GetRtFlags());
    SetDword(Custom(L"\\Games"), kRtFlagsValue, 1);
    EXPECT_EQ(1u, m_games->GetRtFlags());
    SetDword(Custom(L"\\Games"), kRtFlagsValue, 0);
    EXPECT_EQ(0u, m_games->GetRtFlags());
}

TEST_F(MenuStore, FlagsStoredWithAllBitsSetCountAsAbsent)
{
    SetDword(Product(L"\\Games"), kRtFlagsValue, 3);
    SetDword(Custom(L"\\Games"), kRtFlagsValue, 0xFFFFFFFF);
    EXPECT_EQ(3u, m_games->GetRtFlags());
    SetDword(Custom(L"\\User 7"), kRtFlagsValue, 0xFFFFFFFF);
    EXPECT_EQ(0u, m_mine->GetRtFlags());
}

TEST_F(MenuStore, SettingFlagsCreatesTheMirrorKey)
{
    m_games->SetRtFlags(5);
    EXPECT_EQ(CustomLine(L"\\Games") + CustomLine(L"\\Games|RtFlags=05000000"), Changes());
}

TEST_F(MenuStore, RatingAMenuAllocatesAListAndSetsBothBits)
{
    m_games->SetRtFlags(kRtHardwareNavigation);
    m_games->SetRated(true);
    EXPECT_EQ(CustomLine(L"|LastKey=01000000") + CustomLine(L"\\Games") +
                  CustomLine(L"\\Games|Rating=User 1") + CustomLine(L"\\Games|RtFlags=07000000"),
              Changes());
}

TEST_F(MenuStore, RatingUsesTheNameInTheMirrorOrTheBuiltInKey)
{
    SetText(Product(L"\\Games"), kRatingValue, L"GamesList");
    m_games->SetRated(true);
    EXPECT_FALSE(m_hive.ValueExists(Custom(L"\\Games").c_str(), kRatingValue));
    EXPECT_FALSE(m_hive.ValueExists(Custom(L"").c_str(), kLastKeyValue));
    SetText(Custom(L"\\User 7"), kRatingValue, L"MyList");
    m_mine->SetRated(true);
    EXPECT_EQ(L"MyList", Text(Custom(L"\\User 7"), kRatingValue));
    EXPECT_EQ(6u, Dword(Custom(L"\\User 7"), kRtFlagsValue));
}

TEST_F(MenuStore, RatingStartsFromTheBuiltInFlags)
{
    SetDword(Product(L"\\Games"), kRtFlagsValue, 0x11);
    m_games->SetRated(true);
    EXPECT_EQ(0x17u, Dword(Custom(L"\\Games"), kRtFlagsValue));
    EXPECT_EQ(0x11u, Dword(Product(L"\\Games"), kRtFlagsValue));
}

TEST_F(MenuStore, SwitchingRatingOffClearsOneBitAndKeepsTheName)
{
    m_games->SetRated(true);
    m_games->SetRated(false);
    EXPECT_EQ(kRtHasRating, m_games->GetRtFlags());
    EXPECT_EQ(L"User 1", Text(Custom(L"\\Games"), kRatingValue));
    m_games->SetRated(true);
    EXPECT_EQ(L"User 1", Text(Custom(L"\\Games"), kRatingValue)) << "no second list";
    EXPECT_EQ(1u, Dword(Custom(L""), kLastKeyValue));
}

TEST_F(MenuStore, SwitchingRatingOffWithoutAnyWritesFlagsOfZero)
{
    m_games->SetRated(false);
    EXPECT_EQ(CustomLine(L"\\Games") + CustomLine(L"\\Games|RtFlags=00000000"), Changes());
}

// Kinds.

TEST_F(MenuStore, OnlyAKeyOfTheCustomisationLayerWithUserIsAUserItem)
{
    SetDword(Product(L"\\Games"), kUserValue, 1);
    SetDword(Custom(L"\\Games"), kUserValue, 1);
    EXPECT_FALSE(m_games->IsUserItem());
    EXPECT_FALSE(m_tools->IsUserItem());
    EXPECT_TRUE(m_mine->IsUserItem());
    SetDword(Custom(L"\\User 7"), kUserValue, 0);
    EXPECT_FALSE(m_mine->IsUserItem());
    SetDword(Custom(L"\\User 7"), kUserValue, 0x80000000);
    EXPECT_TRUE(m_mine->IsUserItem());
}

TEST_F(MenuStore, ABuiltInMenuTakesItemsWhenItsOwnKeySaysSo)
{
    EXPECT_FALSE(m_games->CanAdd());
    SetDword(Custom(L"\\Games"), kAddValue, 1);
    EXPECT_FALSE(m_games->CanAdd());
    SetDword(Product(L"\\Games"), kAddValue, 2);
    EXPECT_TRUE(m_games->CanAdd());
    SetDword(Shared(L"\\Tools"), kAddValue, 1);
    EXPECT_TRUE(m_tools->CanAdd());
}

TEST_F(MenuStore, AUserMenuTakesItemsAndAUserLinkDoesNot)
{
    EXPECT_TRUE(m_mine->CanAdd());
    SetText(Custom(L"\\User 7"), kFileValue, L"\\a.lnk");
    EXPECT_FALSE(m_mine->CanAdd());
}

TEST_F(MenuStore, AKeyInAUserMenuThatIsNotTheUsersTakesNoItems)
{
    CreateKey(Custom(L"\\User 7\\Other"));
    SetText(Custom(L"\\User 7\\Other"), kTextValue, L"Other");
    SetDword(Custom(L"\\User 7\\Other"), kAddValue, 1);
    const CMenuTree tree = LoadedTree();
    EXPECT_FALSE(ItemOf(tree, L"Other")->IsUserItem());
    EXPECT_FALSE(ItemOf(tree, L"Other")->CanAdd());
}

TEST_F(MenuStore, OperationsOnAnItemWhoseKeyIsGoneGiveTheDefaults)
{
    os::DeleteKeyTree(HKEY_LOCAL_MACHINE, L"SOFTWARE");
    EXPECT_FALSE(m_mine->IsUserItem());
    EXPECT_FALSE(m_mine->CanAdd());
    EXPECT_FALSE(m_mine->Remove(m_tree));
    EXPECT_EQ(MenuDrawType::List, m_games->GetDrawType());
    EXPECT_EQ(0u, m_games->GetRtFlags());
    m_mine->SetText(L"x");
    m_mine->SetImage(3);
    EXPECT_EQ(L"", Dump());
}

} // namespace
