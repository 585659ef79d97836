// Databases as large as the world's.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/Wait.h"

namespace
{

constexpr uint32_t kWorld = 171075;

// Opening, typing and choosing take no longer than this, all in all, in milliseconds.
constexpr ULONGLONG kLongest = 10000;

bool Exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The folder of the real cities beside the build's; empty where nobody has put them.
std::wstring RealCities()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder = path;
    for (int level = 0; level < 5; ++level)
    {
        folder.resize(std::min(folder.find_last_of(L'\\'), folder.size()));
        if (Exists(folder + L"\\data\\CitiesDb.dat"))
            return folder + L"\\data";
    }
    return {};
}

class CityWorld : public CityFixture
{
protected:
    void OpenGenerated(DWORD identifier)
    {
        folder.InstallAsFolder(ManyCities(kWorld).Build());
        Open(identifier);
        ASSERT_EQ(static_cast<int>(kWorld), RowCount());
    }
    // The beginning of a row's name.
    std::wstring Beginning(int row) const { return CellText(row, 0).substr(0, 3); }
};

} // namespace

TEST_F(CityWorld, TheLastCityIsReachedLikeTheFirst)
{
    const ULONGLONG begin = GetTickCount64();
    OpenGenerated(kWorld);
    EXPECT_EQ(static_cast<int>(kWorld) - 1, Mark());
    EXPECT_TRUE(IsRowVisible(static_cast<int>(kWorld) - 1));
    Done();
    EXPECT_STREQ(L"Town 171075", city.name);
    EXPECT_LT(GetTickCount64() - begin, kLongest);
}

TEST_F(CityWorld, TypingNarrowsStepByStep)
{
    OpenGenerated(kNobody);
    const ULONGLONG begin = GetTickCount64();
    const std::wstring name = L"town 171075";
    for (size_t length = 1; length <= name.size(); ++length)
        Type(name.substr(0, length));
    EXPECT_EQ(Texts{L"Town 171075"}, Names());
    Type(L"");
    EXPECT_EQ(static_cast<int>(kWorld), RowCount());
    EXPECT_LT(GetTickCount64() - begin, kLongest);
}

// With made-up cities where the real ones are missing.
TEST_F(CityWorld, TheRealCitiesAreSearchedAndChosen)
{
    const std::wstring real = RealCities();
    if (real.empty())
        folder.InstallAsFolder(ManyCities(kWorld).Build());
    else
        registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", real);
    Open();
    const int all = RowCount();
    ASSERT_GT(all, 100000);
    const std::wstring text = Beginning(all / 2);
    ASSERT_EQ(3u, text.size());
    Type(text);
    ASSERT_GT(RowCount(), 0);
    std::wstring lower = text;
    CharLowerBuffW(lower.data(), 3);
    for (std::wstring name : Column(0, std::min(RowCount(), 200)))
    {
        CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
        EXPECT_NE(std::wstring::npos, name.find(lower));
    }
    const std::wstring first = CellText(0, 0);
    Select(0);
    Done();
    EXPECT_EQ(first.substr(0, 31), city.name);
    EXPECT_EQ(real.empty() ? 0u : 1u, city.hasDetails);
}

TEST_F(CityWorld, TheLastRealCityIsDrawn)
{
    const std::wstring real = RealCities();
    if (real.empty())
        folder.InstallAsFolder(ManyCities(kWorld).Build());
    else
        registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", real);
    Open();
    const int last = RowCount() - 1;
    ToList(LVM_ENSUREVISIBLE, static_cast<WPARAM>(last));
    UpdateWindow(list);
    EXPECT_FALSE(CellText(last, 0).empty());
    EXPECT_FALSE(CellText(last, 1).empty());
    Cancel();
}
