// Where the database is looked for, and which ones are refused.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

constexpr wchar_t kShellKey[] = L"SOFTWARE\\Orvane 2\\Tav Lumenar";

// The module's last look at a path, for its spelling.
std::wstring g_lookedAt;

DWORD WINAPI RememberPath(const wchar_t* path)
{
    g_lookedAt = path;
    return GetFileAttributesW(path);
}

class CityDatabaseFiles : public CityFixture
{
protected:
    void SetInstallDir(const std::wstring& path)
    {
        registry.SetText(kShellKey, L"InstallDir", path);
    }
    void ExpectCities()
    {
        Open(10);
        EXPECT_EQ(kSampleCount, RowCount());
        EXPECT_EQ(L"London", CellText(0, 0));
        Done();
    }
    // Without a database the user can only cancel, and typing does no harm.
    void ExpectNone()
    {
        Open(10);
        EXPECT_EQ(0, RowCount());
        EXPECT_EQ(-1, Mark());
        Type(L"lon");
        Type(L"lond");
        Type(L"");
        EXPECT_EQ(0, RowCount());
        PostCommand(dialog, IDOK);
        ExpectEnd(FALSE);
    }
    void ExpectUnusable(const Bytes& image)
    {
        folder.InstallAsFolder(image);
        ExpectNone();
    }
    static Bytes OfVersion(uint32_t version)
    {
        Bytes image = SampleCities().Build();
        SetField(image, 0, version);
        return image;
    }
};

} // namespace

TEST_F(CityDatabaseFiles, AFolderWithTheMemberAsAFileWillDo)
{
    ExpectCities();
}

TEST_F(CityDatabaseFiles, AnArchiveWithAStoredMemberWillDo)
{
    folder.InstallAsArchive(SampleCities().Build(), false);
    ExpectCities();
}

TEST_F(CityDatabaseFiles, AnArchiveWithAPackedMemberWillDo)
{
    folder.InstallAsArchive(SampleCities().Build(), true);
    ExpectCities();
}

TEST_F(CityDatabaseFiles, Version1IsIgnored)
{
    ExpectUnusable(OfVersion(1));
}

TEST_F(CityDatabaseFiles, Version3IsIgnored)
{
    ExpectUnusable(OfVersion(3));
}

TEST_F(CityDatabaseFiles, AllFourBytesOfTheVersionCount)
{
    ExpectUnusable(OfVersion(0x01000002));
}

TEST_F(CityDatabaseFiles, AMissingStorageGivesAnEmptyList)
{
    folder.Uninstall();
    ExpectNone();
}

TEST_F(CityDatabaseFiles, AMissingMemberGivesAnEmptyList)
{
    folder.Uninstall();
    folder.InstallAsFolder(SampleCities().Build(), L"Other.dat");
    ExpectNone();
}

TEST_F(CityDatabaseFiles, AMissingMemberOfAnArchiveGivesAnEmptyList)
{
    folder.InstallAsArchive(SampleCities().Build(), true, "Other.dat");
    ExpectNone();
}

TEST_F(CityDatabaseFiles, AnEmptyMemberGivesAnEmptyList)
{
    ExpectUnusable({});
}

TEST_F(CityDatabaseFiles, AMemberShorterThanItsVersionGivesAnEmptyList)
{
    ExpectUnusable({2});
    ExpectUnusable({2, 0, 0});
}

TEST_F(CityDatabaseFiles, AFileThatIsNoArchiveGivesAnEmptyList)
{
    folder.Uninstall();
    folder.Write(L"CitiesDb.dat", std::string(5000, 'P'));
    ExpectNone();
}

TEST_F(CityDatabaseFiles, TheInstallationFolderMayEndInABackslash)
{
    SetInstallDir(folder.Path() + L"\\");
    ExpectCities();
}

TEST_F(CityDatabaseFiles, ThePathIsLowerCasedAndTheNamesFollowIt)
{
    std::wstring mixed = folder.Path();
    for (size_t i = 0; i < mixed.size(); i += 2)
        mixed[i] = static_cast<wchar_t>(towupper(mixed[i]));
    SetInstallDir(mixed);
    module = std::make_unique<CModule>();
    const CImportPatch patch(module->Handle(), "kernel32.dll", "GetFileAttributesW", RememberPath);
    ExpectCities();
    std::wstring lower = mixed;
    CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
    EXPECT_NE(mixed, lower);
    EXPECT_EQ(lower + L"\\CitiesDb.dat", g_lookedAt);
}

TEST_F(CityDatabaseFiles, WithoutAnInstallationFolderTheNameStandsAlone)
{
    SetInstallDir(L"");
    module = std::make_unique<CModule>();
    const CImportPatch patch(module->Handle(), "kernel32.dll", "GetFileAttributesW", RememberPath);
    ExpectNone();
    EXPECT_EQ(L"CitiesDb.dat", g_lookedAt);
}

TEST_F(CityDatabaseFiles, AFolderThatIsTooLongGivesAnEmptyList)
{
    SetInstallDir(L"C:\\" + std::wstring(400, L'x'));
    ExpectNone();
}

TEST_F(CityDatabaseFiles, TheFolderIsReadOnItsFirstUseNotWhenTheModuleIsLoaded)
{
    SetInstallDir(L"C:\\nowhere");
    module = std::make_unique<CModule>();
    SetInstallDir(folder.Path());
    ExpectCities();
}

TEST_F(CityDatabaseFiles, TheFolderIsKeptAfterItsFirstUse)
{
    ExpectCities();
    SetInstallDir(L"C:\\nowhere");
    ExpectCities();
}

TEST_F(CityDatabaseFiles, TheDatabaseIsReadAnewForEveryDialog)
{
    ExpectCities();
    folder.InstallAsFolder(ManyCities(3).Build());
    Open(2);
    EXPECT_EQ((Texts{L"Town 1", L"Town 2", L"Town 3"}), Names());
    Cancel();
}

TEST_F(CityDatabaseFiles, WhileTheDialogIsOpenTheFilesMayChange)
{
    Open();
    folder.InstallAsFolder(ManyCities(3).Build());
    Type(L"croy");
    EXPECT_EQ(Texts{L"Croydon"}, Names());
    folder.Uninstall();
    Select(0);
    Done();
    EXPECT_STREQ(L"Croydon", city.name);
}

TEST_F(CityDatabaseFiles, LongerRecordsAreReadByTheirFirstFields)
{
    CCityImageBuilder builder;
    builder.PlaceSize = 40;
    builder.DetailsSize = 200;
    builder.CitySize = 52;
    builder.Area(L"First");
    builder.Area(L"Second");
    builder.Subarea(L"Part");
    builder.Details(1);
    builder.Details(50);
    builder.City({1, builder.Text(L"One"), 0, kNoCityRecord, kNoCityRecord});
    builder.City({2, builder.Text(L"Two"), 1, 0, 1});
    folder.InstallAsFolder(builder.Build());
    Open(2);
    EXPECT_EQ((Texts{L"First", L"Second (Part)"}), Column(1));
    Done();
    EXPECT_STREQ(L"Two", city.name);
    EXPECT_EQ(50, city.details[0]);
    EXPECT_EQ(static_cast<BYTE>(50 + 171), city.details[171]);
}
