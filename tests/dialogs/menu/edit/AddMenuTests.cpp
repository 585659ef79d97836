// Add Menu: which icon a new menu starts with, what is written, and where nothing is added.
#include "tests/dialogs/menu/edit/EditFixture.h"

namespace
{

constexpr const wchar_t* kSettings = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Settings";
constexpr const wchar_t* kDefFolder = L"DefFolder";

class AddMenu : public EditFixture
{
protected:
    // Adds a menu of that name below the node at a path.
    void Add(const std::wstring& path, const std::wstring& name)
    {
        OpenAdd(path);
        SetName(name);
        EndEdit(IDOK);
    }
    // The image of the first menu that is added below Programs.
    DWORD ImageOfAdded() { return registry.CustomDword(L"Programs\\User 4", L"Image"); }
    void ExpectStartsWith(DWORD icon)
    {
        OpenAdd(L"Programs");
        ExpectPreview(ColourOfIcon(static_cast<int>(icon)));
        SetName(L"New");
        EndEdit(IDOK);
        EXPECT_EQ(std::vector<uint32_t>{icon}, Asked(kDrawNumber));
        EXPECT_EQ(icon, ImageOfAdded());
    }
    void ExpectNothingAdded(const std::wstring& name, UINT command)
    {
        Open();
        const std::wstring shown = tree.Dump();
        const std::wstring before = registry.CustomDump();
        OpenAdd(L"Programs");
        SetName(name);
        EndEdit(command);
        EXPECT_EQ(shown, tree.Dump());
        EXPECT_EQ(before, registry.CustomDump());
    }
};

} // namespace

TEST_F(AddMenu, StartsWithTheRegistrysIconForNewMenus)
{
    registry.SetDword(kSettings, kDefFolder, 117);
    StartProcess();
    ExpectStartsWith(117);
}

TEST_F(AddMenu, StartsWithIcon100WhenTheRegistryNamesNone)
{
    StartProcess();
    ExpectStartsWith(100);
    // Looking for it makes no key.
    EXPECT_FALSE(registry.KeyExists(kSettings));
}

TEST_F(AddMenu, StartsWithIcon100WhenTheRegistrysIsTooLarge)
{
    const DWORD number[] = {117, 0};
    registry.SetRaw(kSettings, kDefFolder, REG_BINARY, number, sizeof(number));
    StartProcess();
    ExpectStartsWith(100);
}

TEST_F(AddMenu, TakesAShortIconNumberAsItStands)
{
    const WORD number = 118;
    registry.SetRaw(kSettings, kDefFolder, REG_BINARY, &number, sizeof(number));
    StartProcess();
    ExpectStartsWith(118);
}

TEST_F(AddMenu, OfARegistryThatNamesMinusOneHasNoIcon)
{
    registry.SetDword(kSettings, kDefFolder, 0xFFFFFFFF);
    StartProcess();
    OpenAdd(L"Programs");
    ExpectPreview(kWhite);
    EXPECT_TRUE(process->Requests().empty());
    SetName(L"New");
    EndEdit(IDOK);
    EXPECT_FALSE(registry.CustomExists(L"Programs\\User 4", L"Image"));
    EXPECT_EQ(L"New", registry.CustomText(L"Programs\\User 4", L"Text"));
}

TEST_F(AddMenu, StartsWithAnEmptyName)
{
    OpenAdd(L"Programs");
    EXPECT_EQ(L"", Name());
    EXPECT_EQ(nullptr, Control(kPathId));
}

TEST_F(AddMenu, WritesTheMenuAndNothingElse)
{
    Open();
    const std::wstring before = registry.CustomDump();
    Add(L"Programs", L"New");
    EXPECT_EQ(
        (std::vector<std::wstring>{
            L"+\\Programs\\User 4", L"+\\Programs\\User 4|Image=64000000",
            L"+\\Programs\\User 4|Index=04000000", L"+\\Programs\\User 4|Text=New",
            L"+\\Programs\\User 4|User=01000000", L"+|LastKey=04000000", L"-|LastKey=03000000"}),
        DumpDifference(before, registry.CustomDump()));
}

TEST_F(AddMenu, ShowsItAsTheLastOneSelectedInViewAndChecked)
{
    // More than the screen has rows for.
    for (int i = 0; i < 30; ++i)
        registry.AddUserMenu(L"User 1\\User 1" + std::to_wstring(i), L"filler", 10);
    OpenAdd(L"My Menu");
    SetName(L"New");
    EndEdit(IDOK);
    const HTREEITEM node = tree.Find(L"My Menu/New");
    ASSERT_NE(nullptr, node);
    EXPECT_EQ(L"New", tree.ChildrenOf(L"My Menu").back());
    EXPECT_EQ(node, tree.Selected());
    EXPECT_TRUE(tree.IsInView(node));
    EXPECT_EQ(BoxOn, tree.BoxOf(node));
}

TEST_F(AddMenu, TakesTheChosenIcon)
{
    StartProcess();
    OpenAdd(L"Programs");
    SetName(L"New");
    Choose(7);
    EndEdit(IDOK);
    EXPECT_EQ(107u, ImageOfAdded());
}

TEST_F(AddMenu, AddsBelowANewMenuAtOnce)
{
    Add(L"My Menu", L"One");
    Add(L"My Menu/One", L"Two");
    EXPECT_EQ(L"One", registry.CustomText(L"User 1\\User 4", L"Text"));
    EXPECT_EQ(L"Two", registry.CustomText(L"User 1\\User 4\\User 5", L"Text"));
    EXPECT_EQ(0u, registry.CustomDword(L"User 1\\User 4\\User 5", L"Index"));
    const std::wstring shown = tree.Dump();
    Cancel();
    Open();
    EXPECT_EQ(shown, tree.Dump());
}

TEST_F(AddMenu, AddsToARootThatTakesItems)
{
    SetProduct(L"", L"Add", 1);
    Add(L"", L"New");
    EXPECT_EQ(L"New", registry.CustomText(L"User 4", L"Text"));
    EXPECT_EQ(L"New", tree.ChildrenOf(L"").back());
}

TEST_F(AddMenu, WithoutANameAddsNothing)
{
    ExpectNothingAdded(L"", IDOK);
}

TEST_F(AddMenu, CancelledAddsNothing)
{
    ExpectNothingAdded(L"New", IDCANCEL);
}

TEST_F(AddMenu, ANameOfBlanksIsAName)
{
    Add(L"Programs", L" ");
    EXPECT_EQ(L" ", registry.CustomText(L"Programs\\User 4", L"Text"));
}

TEST_F(AddMenu, OpensForAMenuWithFiveAncestorsButNotWithSix)
{
    std::wstring key = L"Programs";
    for (const wchar_t* name : {L"B", L"C", L"D", L"E", L"F"})
    {
        key += L"\\";
        key += name;
        registry.AddProduct(key, name, 0);
        SetProduct(key, L"Add", 1);
    }
    ExpectNothingOpens(CommandAddMenu, L"Programs/B/C/D/E/F");
    Add(L"Programs/B/C/D/E", L"New");
    EXPECT_NE(nullptr, tree.Find(L"Programs/B/C/D/E/New"));
}

TEST_F(AddMenu, OpensForContainersOnly)
{
    for (const wchar_t* path :
         {L"", L"Tools", L"Settings", L"Programs/Maps", L"Programs/Calendar", L"My Menu/Radio"})
        ExpectNothingOpens(CommandAddMenu, path);
}

TEST_F(AddMenu, WithoutAnItemOrASelectionDoesNothing)
{
    Open();
    Orphan(L"Programs");
    ExpectNothingOpens(CommandAddMenu, L"Programs");
    tree.Select(nullptr);
    ExpectNothingOpens(CommandAddMenu);
}

TEST_F(AddMenu, ToAMenuThatIsGoneMeanwhileAddsNothing)
{
    OpenAdd(L"My Menu");
    SendCommand(dialog, CommandRemove);
    ASSERT_EQ(nullptr, tree.Find(L"My Menu"));
    const std::wstring before = registry.CustomDump();
    SetName(L"New");
    EndEdit(IDOK);
    EXPECT_EQ(before, registry.CustomDump());
}
