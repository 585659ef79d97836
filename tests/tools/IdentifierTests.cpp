// Identifiers that stay: over row orders, filters and builds.
#include "tools/citydb/Identifiers.h"

#include "tests/tools/ToolFixture.h"

#include <algorithm>
#include <map>
#include <set>

using namespace citydb;

namespace
{

CityRow Row(const std::string& name, const std::string& country = "CH", int32_t latitude = 0)
{
    CityRow row;
    row.Name = name;
    row.Country = country;
    row.Latitude = latitude;
    row.Place = {"file", 1, 0};
    return row;
}

std::map<std::string, uint32_t> Assigned(std::vector<CityRow> rows)
{
    CProblems problems;
    AssignIdentifiers(rows, problems);
    std::map<std::string, uint32_t> identifiers;
    for (const CityRow& row : rows)
        identifiers[row.Name] = row.Identifier;
    return identifiers;
}

} // namespace

TEST(CityIdentifiers, TheHashIsTheKnownOne)
{
    // Published test values of FNV-1a with 32 bits.
    EXPECT_EQ(0x811C9DC5u, HashOf(""));
    EXPECT_EQ(0xE40C292Cu, HashOf("a"));
    EXPECT_EQ(0xBF9CF968u, HashOf("foobar"));
}

TEST(CityIdentifiers, AnIdentifierIsTheHashOfThePlace)
{
    EXPECT_EQ(HashOf("CH\x1F\x1F\x1F"
                     "Bern\x1F"
                     "0\x1F"
                     "0"),
              Assigned({Row("Bern")})["Bern"]);
}

TEST(CityIdentifiers, EveryPartOfThePlaceChangesIt)
{
    const CityRow bern = Row("Bern");
    std::set<std::string> keys = {PlaceKey(bern), PlaceKey(Row("Thun")),
                                  PlaceKey(Row("Bern", "DE")), PlaceKey(Row("Bern", "CH", 1))};
    CityRow moved = bern;
    moved.Longitude = 1;
    keys.insert(PlaceKey(moved));
    for (std::string CityRow::*part : {&CityRow::Region1, &CityRow::Region2})
    {
        CityRow other = bern;
        other.*part = "1";
        keys.insert(PlaceKey(other));
    }
    EXPECT_EQ(7u, keys.size());
}

TEST(CityIdentifiers, PopulationAndTimeZoneDontChangeIt)
{
    CityRow row = Row("Bern");
    row.Population = 5;
    row.TimeZone = "Europe/Zurich";
    EXPECT_EQ(PlaceKey(Row("Bern")), PlaceKey(row));
}

TEST(CityIdentifiers, TwoPlacesOfOneHashGetTheSameIdentifiersInAnyOrder)
{
    // Found by search.
    const CityRow first = Row("n610708");
    const CityRow second = Row("n1034826");
    ASSERT_EQ(HashOf(PlaceKey(first)), HashOf(PlaceKey(second)));
    const auto forth = Assigned({first, second});
    const auto back = Assigned({second, first});
    EXPECT_EQ(forth, back);
    EXPECT_NE(forth.at(first.Name), forth.at(second.Name));
    const bool firstKeeps = PlaceKey(first) < PlaceKey(second);
    EXPECT_EQ(HashOf(PlaceKey(first)), forth.at(firstKeeps ? first.Name : second.Name));
}

TEST(CityIdentifiers, AHashThatASourceUsesItselfIsGivenWay)
{
    CityRow given = Row("Given");
    given.Identifier = HashOf(PlaceKey(Row("Bern")));
    for (const std::vector<CityRow>& rows : {std::vector{given, Row("Bern")}, {Row("Bern"), given}})
    {
        const auto identifiers = Assigned(rows);
        EXPECT_EQ(given.Identifier, identifiers.at("Given"));
        EXPECT_EQ(HashOf(PlaceKey(Row("Bern")) + "\x1F" + "1"), identifiers.at("Bern"));
    }
}

TEST(CityIdentifiers, APlaceThatHashesToAReservedOneIsHashedAgain)
{
    // Found by search.
    const CityRow zero = Row("n12", "CH", 79167659);
    const CityRow ones = Row("n127", "CH", 21605442);
    ASSERT_EQ(0u, HashOf(PlaceKey(zero)));
    ASSERT_EQ(0xFFFFFFFFu, HashOf(PlaceKey(ones)));
    for (const CityRow& row : {zero, ones})
        EXPECT_EQ(HashOf(PlaceKey(row) + "\x1F" + "1"), Assigned({row})[row.Name]);
}

namespace
{

class CityIdentifierBuild : public CToolTest
{
protected:
    std::vector<Place> m_places = {
        {"Bern", "CH"}, {"Thun", "CH"}, {"Berlin", "DE"}, {"Paris", "FR"}};
};

} // namespace

TEST_F(CityIdentifierBuild, TheOrderOfTheRowsChangesNoByte)
{
    ASSERT_EQ(0, Build(Table(m_places)).Code);
    const std::string image = Slurp(Database());
    std::reverse(m_places.begin(), m_places.end());
    ASSERT_EQ(0, Build(Table(m_places)).Code);
    EXPECT_EQ(image, Slurp(Database()));
}

TEST_F(CityIdentifierBuild, AFilterChangesNoIdentifierEvenWhereTwoHashesAgree)
{
    // Found by search; the place that keeps the hash is of another country and is filtered out.
    const std::string winner = "n68280";
    const std::string loser = "n29418";
    ASSERT_EQ(HashOf(PlaceKey(Row(winner, "AT", 1000000))),
              HashOf(PlaceKey(Row(loser, "CH", 1000000))));
    const auto at = [](const std::string& name, const std::string& country)
    {
        Place place{name, country};
        place.Latitude = "1";
        place.Longitude = "0";
        return place;
    };
    const std::string text = Table({at(winner, "AT"), at(loser, "CH")});
    ASSERT_EQ(0, Build(text).Code);
    const std::string identifier = IdentifierOf(loser);
    ASSERT_EQ(0, Build(text, {"--countries", "CH"}).Code);
    EXPECT_EQ(identifier, IdentifierOf(loser));
    EXPECT_NE(std::to_string(HashOf(PlaceKey(Row(loser, "CH", 1000000)))), identifier);
}

TEST_F(CityIdentifierBuild, AnIdentifierOfTheSourceIsKept)
{
    Place bern;
    bern.Identifier = "2661552";
    ASSERT_EQ(0, Build(Line(bern)).Code);
    EXPECT_EQ("2661552", IdentifierOf("bern"));
}

TEST_F(CityIdentifierBuild, AnIdentifierThatIsThereTwiceLeavesTheSecondRowOut)
{
    Place bern;
    bern.Identifier = "5";
    Place thun{"Thun"};
    thun.Identifier = "5";
    const ToolRun run = Build(Table({bern, thun}));
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:2: identifier 5 is taken by "))
        << run.Err;
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:1\n")) << run.Err;
    EXPECT_EQ("Bern\tSwitzerland\n", Names());
}

TEST_F(CityIdentifierBuild, APlaceThatIsThereTwiceIsListedOnce)
{
    const ToolRun run = Build(Table({Place(), Place()}));
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:2: it is the same place as ")) << run.Err;
    EXPECT_EQ("Bern\tSwitzerland\n", Names());
}
