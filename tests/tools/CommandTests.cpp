// The commands from outside: what they print, which code they end with, what they stand.
#include "tests/tools/SmallImage.h"
#include "tests/tools/ToolFixture.h"

#include <algorithm>
#include <random>

namespace
{

class CityCommand : public CToolTest
{
protected:
    std::string Write(const std::vector<uint8_t>& image) const
    {
        return Folder.Write("Database.dat", std::string(image.begin(), image.end()));
    }

    // Every command on a file; they may refuse it, but in their own way.
    void SurviveAll(const std::string& file) const
    {
        for (const std::vector<std::string>& arguments : {std::vector<std::string>{"check", file},
                                                          {"list", file},
                                                          {"list", file, "a"},
                                                          {"show", file, "100"}})
        {
            const ToolRun run = RunTool(arguments);
            EXPECT_TRUE(run.Code == 0 || run.Code == 1) << arguments[0];
            EXPECT_TRUE(run.Code == 0 || !(run.Out + run.Err).empty()) << arguments[0];
        }
    }

    // Options with small tables, so that hundreds of builds take no time.
    std::vector<std::string> SmallTables() const
    {
        const char* const countries = R"({"3166-1":[{"alpha_2":"CH","name":"Switzerland"}]})";
        return {"--country-names", Folder.Write("countries.json", countries), "--zones",
                Folder.Write("zone.tab", "CH\t+4723+00832\tEurope/Zurich\n")};
    }

    ToolRun RunProgram(const std::string& arguments) const
    {
        return RunShell("cd '" + Folder.Path().string() + "' && '" + ToolPath() + "' " + arguments);
    }
};

} // namespace

TEST_F(CityCommand, WhatIsBuiltIsGoodFoundAndShown)
{
    Place bern;
    bern.Identifier = "2661552";
    bern.Population = "133883";
    bern.TimeZone = "Europe/Zurich";
    Place lima{"Lima", "PE"};
    lima.Latitude = "-12.04318";
    lima.Longitude = "-0.5";
    for (const char* form : {"image", "zip", "folder"})
    {
        const CTempFolder folder;
        const std::string source = folder.Write("source.tsv", Table({bern, lima}));
        const std::string out = folder.Path().string();
        const ToolRun built = RunTool({"build", source, "--out", out, "--form", form});
        EXPECT_EQ(0, built.Code) << built.Err;
        EXPECT_EQ(0, RunTool({"check", out}).Code);
        EXPECT_NE(
            std::string::npos,
            RunTool({"check", out}).Out.find("good: 2 cities, 2 areas, 0 subareas, 2 details"));
        EXPECT_EQ("2661552\tBern\tSwitzerland\n", RunTool({"list", out, "ER"}).Out);
        EXPECT_EQ("record 0\n"
                  "  identifier       2661552\n"
                  "  name             Bern\n"
                  "  area             Switzerland\n"
                  "  details version  1\n"
                  "  latitude         46.948090\n"
                  "  longitude        7.447440\n"
                  "  population       133883\n"
                  "  country          CH\n"
                  "  time zone        Europe/Zurich\n",
                  RunTool({"show", out, "2661552"}).Out);
        const std::string list = RunTool({"list", out, "lima"}).Out;
        const std::string shown = RunTool({"show", out, list.substr(0, list.find('\t'))}).Out;
        EXPECT_NE(std::string::npos, shown.find("  latitude         -12.043180\n"
                                                "  longitude        -0.500000\n"
                                                "  population       unknown\n"
                                                "  country          PE\n"
                                                "  time zone        America/Lima\n"))
            << shown;
    }
}

TEST_F(CityCommand, BuildingTwiceGivesTheSameBytes)
{
    const std::string source = Folder.Write("source.tsv", Table({{"Bern", "CH"}, {"Lima", "PE"}}));
    for (const char* name : {"first", "second"})
        ASSERT_EQ(0, RunTool({"build", source, "--out", Folder.File(name)}).Code);
    EXPECT_EQ(Slurp(Folder.File("first")), Slurp(Folder.File("second")));
    EXPECT_NE("", Slurp(Folder.File("first")));
}

TEST_F(CityCommand, WithoutDetailsTheImageIsSmallAndStillGood)
{
    ASSERT_EQ(0, Build(Line(Place())).Code);
    const size_t whole = Slurp(Database()).size();
    ASSERT_EQ(0, Build(Line(Place()), {"--no-details"}).Code);
    EXPECT_EQ(whole - 176, Slurp(Database()).size());
    EXPECT_EQ(0, RunTool({"check", Database()}).Code);
    EXPECT_NE(
        std::string::npos,
        RunTool({"show", Database(), IdentifierOf("bern")}).Out.find("  details          none\n"));
}

TEST_F(CityCommand, ListFindsTextsAnywhereAndInAnyCase)
{
    ASSERT_EQ(0, Build(Table({{"London", "GB"}, {"Swindon", "GB"}, {"Zürich", "CH"}})).Code);
    EXPECT_EQ("London\tUnited Kingdom\nSwindon\tUnited Kingdom\n", Names("DON"));
    EXPECT_EQ("Zürich\tSwitzerland\n", Names("ÜRI"));
    EXPECT_EQ("", Names("uri")) << "letters with accents are letters of their own";
    EXPECT_EQ("", Names("dons"));
}

TEST_F(CityCommand, ListCutsTheTextAsTheDialogDoes)
{
    const std::string name = std::string(31, 'x') + "y";
    ASSERT_EQ(0, Build(Table({{name, "CH"}})).Code);
    EXPECT_NE("", Names(std::string(31, 'X') + "something else"));
    EXPECT_EQ("", Names(std::string(30, 'x') + "z"));
}

TEST_F(CityCommand, ListPrintsTheCountAsideAndNoMoreThanItsLimit)
{
    ASSERT_EQ(0, Build(Table({{"Aa", "CH"}, {"Ab", "CH"}, {"Ac", "CH"}, {"B", "CH"}})).Code);
    const ToolRun run = RunTool({"list", Database(), "a", "--limit", "2"});
    EXPECT_EQ(2, std::count(run.Out.begin(), run.Out.end(), '\n'));
    EXPECT_EQ("3 of 4 cities\n", run.Err);
}

TEST_F(CityCommand, ShowPrintsEveryRowOfAnIdentifierTheMainOneFirst)
{
    ASSERT_EQ(0, Build(Table({{"Łódź", "PL"}}), {"--plain-spellings"}).Code);
    const std::string out = RunTool({"show", Database(), IdentifierOf("lodz")}).Out;
    EXPECT_LT(out.find("name             Łódź"), out.find("name             Lodz"));
    EXPECT_NE(std::string::npos, out.find("name             Lodz"));
}

TEST_F(CityCommand, ShowSaysWhenThereIsNoSuchCity)
{
    const ToolRun run = RunTool({"show", Write(small::Image()), "5"});
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("has no city 5"));
}

TEST_F(CityCommand, ADetailsRecordOfAnotherVersionIsNotDecoded)
{
    std::vector<uint8_t> image = small::Image();
    small::Put(image, small::kDetails + 4, 7);
    const std::string out = RunTool({"show", Write(image), "100"}).Out;
    EXPECT_NE(std::string::npos, out.find("details version  7"));
    EXPECT_EQ(std::string::npos, out.find("latitude"));
}

TEST_F(CityCommand, CheckNamesTheFileTheRecordAndThePlace)
{
    std::vector<uint8_t> image = small::Image();
    small::Put(image, small::kCities + 4, 0xFFFFFFF0);
    const std::string file = Write(image);
    const ToolRun run = RunTool({"check", file});
    EXPECT_EQ(1, run.Code);
    EXPECT_EQ(file +
                  ": table 3 (cities), record 0 at 0x1B0: name offset 0xFFFFFFF0 lies behind the "
                  "end (0x20E)\n",
              run.Out);
}

TEST_F(CityCommand, CheckShowsTwentyFaultsOrAll)
{
    std::vector<uint8_t> image = small::Image();
    const uint32_t first = static_cast<uint32_t>(image.size());
    image.resize(first + 25 * 20);
    small::Put(image, 44, first);
    small::Put(image, 48, 25);
    const auto lines = [](const std::string& out)
    { return std::count(out.begin(), out.end(), '\n'); };
    const std::string few = RunTool({"check", Write(image)}).Out;
    EXPECT_EQ(21, lines(few));
    EXPECT_NE(std::string::npos, few.find("... and "));
    EXPECT_GT(lines(RunTool({"check", Write(image), "--verbose"}).Out), 25);
}

TEST_F(CityCommand, AnImageThatIsBrokenWhereItIsReadIsCalledSo)
{
    std::vector<uint8_t> image = small::Image();
    small::Put(image, small::kCities + 8, 9);
    const ToolRun run = RunTool({"list", Write(image)});
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("the image is broken; \"citydb check\" says where"));
}

TEST_F(CityCommand, AnImageOfAnotherVersionIsNotSearched)
{
    std::vector<uint8_t> image = small::Image();
    image[0] = 3;
    const ToolRun run = RunTool({"list", Write(image)});
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("is no image of version 2"));
}

TEST_F(CityCommand, EveryCutImageIsSurvived)
{
    const std::vector<uint8_t> whole = small::Image();
    for (size_t size = 0; size < whole.size(); ++size)
    {
        std::vector<uint8_t> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        const std::string file = Write(cut);
        SurviveAll(file);
        EXPECT_EQ(1, RunTool({"check", file}).Code) << size;
    }
}

namespace
{

// The value that each byte in turn gets.
class CityCommandByte : public CityCommand, public testing::WithParamInterface<uint8_t>
{
};

} // namespace

TEST_P(CityCommandByte, EveryChangedByteIsSurvived)
{
    const std::vector<uint8_t> whole = small::Image();
    for (size_t i = 0; i < whole.size(); ++i)
    {
        std::vector<uint8_t> changed = whole;
        changed[i] = GetParam();
        SurviveAll(Write(changed));
    }
}

INSTANTIATE_TEST_SUITE_P(Values, CityCommandByte, testing::Values(0x00, 0xFF, 0x7F, 0x80));

TEST_F(CityCommand, RandomBytesAreSurvivedAsAnImageAndAsASource)
{
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round)
    {
        std::vector<uint8_t> bytes(random() % 600);
        for (uint8_t& byte : bytes)
            byte = static_cast<uint8_t>(random());
        if (round % 2 == 0 && bytes.size() >= 8)
        {
            small::Put(bytes, 0, 2);
            small::Put(bytes, 4, 4);
        }
        SurviveAll(Write(bytes));
        std::string text(bytes.begin(), bytes.end());
        if (round % 3 == 0)
            text.insert(0, "[{\"name\":\"");
        EXPECT_EQ(1, Build(text, SmallTables()).Code);
    }
}

TEST_F(CityCommand, EveryCutAndChangedSourceIsSurvived)
{
    const Place place{"Zürich", "CH", "ZH", "112"};
    for (const std::string& source : {Line(place), Array({place})})
    {
        for (size_t i = 0; i < source.size(); ++i)
        {
            std::string changed = source;
            changed[i] = static_cast<char>(changed[i] ^ 0x80);
            EXPECT_LE(Build(source.substr(0, i), SmallTables()).Code, 1) << i;
            EXPECT_LE(Build(changed, SmallTables()).Code, 1) << i;
        }
    }
}

TEST_F(CityCommand, ExitCodesTellGoodBadAndMisused)
{
    Folder.Write("source.tsv", Line(Place()));
    Folder.Write("bad", "x");
    EXPECT_EQ(0, RunProgram("build source.tsv --out CitiesDb.dat").Code);
    EXPECT_EQ(0, RunProgram("check .").Code);
    EXPECT_EQ(0, RunProgram("list . bern").Code);
    EXPECT_EQ(1, RunProgram("check bad").Code);
    EXPECT_EQ(1, RunProgram("check absent").Code);
    EXPECT_EQ(1, RunProgram("build absent --out x").Code);
    EXPECT_EQ(1, RunProgram("build source.tsv --country-names absent --out x").Code);
    EXPECT_EQ(1, RunProgram("build source.tsv --zones bad --out x").Code);
    for (const char* misuse :
         {"", "fly", "build", "build source.tsv", "build source.tsv --out x --form y",
          "build source.tsv --out x --order y", "build source.tsv --out x --min-population -1",
          "check", "show .", "show . x", "list . --limit x", "list . \xFF"})
        EXPECT_EQ(2, RunProgram(misuse).Code) << misuse;
}

TEST_F(CityCommand, AFullDiskIsNoSuccess)
{
    Folder.Write("source.tsv", Line(Place()));
    ASSERT_EQ(0, RunProgram("build source.tsv --out CitiesDb.dat").Code);
    EXPECT_EQ(1, RunProgram("list . >/dev/full").Code);
}

TEST_F(CityCommand, HelpOfEachCommandNamesItsOptions)
{
    EXPECT_NE(std::string::npos, RunProgram("--help").Out.find("build"));
    const std::string build = RunProgram("build --help").Out;
    for (const char* option : {"--out", "--form", "--regions", "--min-population", "--countries",
                               "--order", "--plain-spellings", "--report", "--verbose"})
        EXPECT_NE(std::string::npos, build.find(option)) << option;
    for (const char* command : {"check", "list", "show"})
        EXPECT_EQ(0, RunProgram(std::string(command) + " --help").Code) << command;
}
