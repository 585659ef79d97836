// What the readers of the two source formats take, and how they name what they don't take.
#include "tests/tools/ToolFixture.h"

namespace
{

class CitySource : public CToolTest
{
protected:
    // Builds from a good row, the given line as the second one, and another good row.
    std::string RefusalOf(const std::string& line)
    {
        Place last;
        last.Name = "Thun";
        const ToolRun run = Build(Line(Place()) + line + Line(last));
        EXPECT_EQ(0, run.Code) << run.Err;
        EXPECT_EQ("Bern\tSwitzerland\nThun\tSwitzerland\n", Names());
        EXPECT_NE(std::string::npos, run.Err.find("rows left out: 1\n")) << run.Err;
        const size_t line2 = run.Err.find("source.tsv:2: ");
        return line2 == std::string::npos
                   ? run.Err
                   : run.Err.substr(line2 + 14, run.Err.find('\n', line2) - line2 - 14);
    }

    std::string RefusalOf(const Place& place) { return RefusalOf(Line(place)); }
};

Place With(std::string Place::*field, const std::string& value)
{
    Place place;
    place.*field = value;
    return place;
}

} // namespace

TEST_F(CitySource, ARowWithoutANameIsLeftOutAndNamedWithItsLine)
{
    EXPECT_EQ("it has no name", RefusalOf(With(&Place::Name, "")));
    EXPECT_EQ("it has no name", RefusalOf(With(&Place::Name, "  ")));
}

TEST_F(CitySource, ANameThatIsNoValidUtf8IsLeftOut)
{
    EXPECT_EQ("its name is no valid UTF-8", RefusalOf(With(&Place::Name, "Z\xFCrich")));
    EXPECT_EQ("its name is no valid UTF-8", RefusalOf(With(&Place::Name, "cut \xC3")));
    EXPECT_EQ("its name is no valid UTF-8",
              RefusalOf(With(&Place::Name, "half pair \xED\xA0\x80")));
}

TEST_F(CitySource, ANulInANameIsLeftOut)
{
    EXPECT_EQ("its name holds a NUL", RefusalOf(With(&Place::Name, std::string("Be\0rn", 5))));
}

TEST_F(CitySource, AControlCharacterInANameIsLeftOut)
{
    EXPECT_EQ("its name holds a control character", RefusalOf(With(&Place::Name, "Be\x01rn")));
}

TEST_F(CitySource, APositionOutOfRangeIsLeftOut)
{
    EXPECT_EQ("latitude \"90.00001\" is out of range",
              RefusalOf(With(&Place::Latitude, "90.00001")));
    EXPECT_EQ("latitude \"-91\" is out of range", RefusalOf(With(&Place::Latitude, "-91")));
    EXPECT_EQ("longitude \"180.5\" is out of range", RefusalOf(With(&Place::Longitude, "180.5")));
    EXPECT_EQ("longitude \"-181\" is out of range", RefusalOf(With(&Place::Longitude, "-181")));
}

TEST_F(CitySource, APositionThatIsNoNumberIsLeftOut)
{
    for (const char* text : {"", "north", "4x", " 4", "nan", "inf", "1e999"})
        EXPECT_EQ("latitude \"" + std::string(text) + "\" is no number",
                  RefusalOf(With(&Place::Latitude, text)));
}

TEST_F(CitySource, ThePolesAndTheDateLineAreTaken)
{
    Place pole = With(&Place::Latitude, "-90");
    pole.Longitude = "180";
    EXPECT_EQ(0, Build(Line(pole)).Code);
    EXPECT_EQ("Bern\tSwitzerland\n", Names());
}

TEST_F(CitySource, AnUnknownCountryIsLeftOut)
{
    EXPECT_EQ("country \"QQ\" is unknown", RefusalOf(With(&Place::Country, "QQ")));
    EXPECT_EQ("country \"\" is unknown", RefusalOf(With(&Place::Country, "")));
    EXPECT_EQ("country \"ch\" is unknown", RefusalOf(With(&Place::Country, "ch")));
}

TEST_F(CitySource, ARowWithAnotherNumberOfColumnsIsLeftOut)
{
    EXPECT_EQ("2 columns instead of 19", RefusalOf("only\ttwo\n"));
    std::string line = Line(Place());
    line.insert(0, "\t");
    EXPECT_EQ("20 columns instead of 19", RefusalOf(line));
}

TEST_F(CitySource, AFeatureThatIsNoPopulatedPlaceIsLeftOut)
{
    std::string mountain = Line(Place());
    mountain.replace(mountain.find("\tP\tPPL"), 6, "\tT\tMTN");
    EXPECT_EQ("its feature class is \"T\", not that of a populated place", RefusalOf(mountain));
}

TEST_F(CitySource, NumbersThatAreNoneAreLeftOut)
{
    EXPECT_EQ("identifier 0 stands for no city", RefusalOf(With(&Place::Identifier, "0")));
    EXPECT_EQ("identifier \"4294967295\" is no number from 0 to 4294967294",
              RefusalOf(With(&Place::Identifier, "4294967295")));
    EXPECT_EQ("population \"-5\" is no number from 0 to 4294967294",
              RefusalOf(With(&Place::Population, "-5")));
}

TEST_F(CitySource, ATimeZoneThatDoesntFitIsLeftOut)
{
    const std::string zone(48, 'x');
    EXPECT_EQ("time zone \"" + zone + "\" is no zone's name",
              RefusalOf(With(&Place::TimeZone, zone)));
    EXPECT_EQ("time zone \"Ze\xC3\xB6\" is no zone's name",
              RefusalOf(With(&Place::TimeZone, "Ze\xC3\xB6")));
}

TEST_F(CitySource, EmptyLinesAndCommentsAreNoRows)
{
    const ToolRun run = Build("# credit\n\n" + Line(Place()) + "\r\n");
    EXPECT_EQ("", run.Err);
    EXPECT_EQ("Bern\tSwitzerland\n", Names());
}

TEST_F(CitySource, LineEndsOfAnotherSystemAreNoPartOfTheLastColumn)
{
    std::string line = Line(Place());
    line.insert(line.size() - 1, "\r");
    EXPECT_EQ("", Build(line).Err);
}

TEST_F(CitySource, ANameOf31UnitsIsNotReportedAndOneOf32Is)
{
    EXPECT_EQ("", Build(Line(With(&Place::Name, std::string(31, 'x')))).Err);
    const std::string longName(32, 'y');
    const ToolRun run = Build(Line(With(&Place::Name, longName)));
    EXPECT_EQ(0, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:1: name of 32 units, kept whole"))
        << run.Err;
    EXPECT_EQ(longName + "\tSwitzerland\n", Names()) << "the name stays whole";
}

TEST_F(CitySource, UnitsAreCountedNotBytesOrCharacters)
{
    std::string name;
    for (int i = 0; i < 16; ++i)
        name += "\xF0\x90\x8D\x88"; // two units each
    EXPECT_NE(std::string::npos,
              Build(Line(With(&Place::Name, name))).Err.find("name of 32 units"));
}

TEST_F(CitySource, OnlyTheFirstTwentyRowsAreShownAndTheRestIsCounted)
{
    std::string text = Line(Place());
    for (int i = 0; i < 25; ++i)
        text += "bad\n";
    const ToolRun run = Build(text);
    EXPECT_NE(std::string::npos, run.Err.find("rows left out: 25\n"));
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:21:"));
    EXPECT_EQ(std::string::npos, run.Err.find("source.tsv:22:"));
    EXPECT_NE(std::string::npos, run.Err.find("... and 5 more"));
    EXPECT_NE(std::string::npos, Build(text, {"--verbose"}).Err.find("source.tsv:26:"));
}

TEST_F(CitySource, AReportFileHoldsAllRowsThatAreNamed)
{
    std::string text = Line(Place());
    for (int i = 0; i < 25; ++i)
        text += "bad\n";
    const ToolRun run = Build(text, {"--report", Folder.File("report.txt")});
    EXPECT_NE(std::string::npos, run.Err.find("rows left out: 25\n"));
    EXPECT_NE(std::string::npos, Slurp(Folder.File("report.txt")).find("source.tsv:26: 1 columns"));
}

TEST_F(CitySource, QuietIsRefusedWithoutAReport)
{
    EXPECT_EQ(2, Build(Line(Place()), {"--quiet"}).Code);
    const ToolRun run =
        Build(Line(Place()) + "bad\n", {"--quiet", "--report", Folder.File("report.txt")});
    EXPECT_EQ("", run.Out + run.Err);
    EXPECT_NE("", Slurp(Folder.File("report.txt")));
}

TEST_F(CitySource, JsonGivesTheSamePlacesAsTheTable)
{
    Place zurich;
    zurich.Name = "Zürich";
    zurich.Region1 = "ZH";
    zurich.Region2 = "112";
    ASSERT_EQ(0, Build(Table({Place(), zurich})).Code);
    const std::string image = Slurp(Database());
    ASSERT_EQ(0, Build(Array({Place(), zurich})).Code);
    EXPECT_EQ(image, Slurp(Database()));
}

TEST_F(CitySource, AJsonRowIsNamedWithItsLineAndItsNumber)
{
    const ToolRun run = Build(Array({Place(), With(&Place::Latitude, "95"), Place()}));
    EXPECT_NE(std::string::npos,
              run.Err.find("source.tsv:2: row 2: latitude \"95\" is out of range"))
        << run.Err;
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:3: row 3: it is the same place as"));
}

TEST_F(CitySource, AJsonFieldThatIsNoTextLeavesTheRowOut)
{
    for (const char* value : {"5", "5.5", "-5", "true", "{}", "[]", "{\"name\":\"x\"}", "[1,[2]]"})
    {
        const ToolRun run =
            Build("[{\"name\":" + std::string(value) + "}," + Object(Place()) + "]");
        EXPECT_EQ(0, run.Code) << value;
        EXPECT_NE(std::string::npos, run.Err.find("source.tsv:1: row 1: \"name\" is no text"))
            << value << run.Err;
        EXPECT_EQ("Bern\tSwitzerland\n", Names()) << value;
    }
}

TEST_F(CitySource, AJsonElementThatIsNoObjectIsLeftOut)
{
    for (const char* element : {"5", "\"Bern\"", "true", "null", "[]", "[[1]]"})
    {
        const ToolRun run = Build("[" + Object(Place()) + "," + element + "," +
                                  Object(With(&Place::Name, "Thun")) + "]");
        EXPECT_EQ(0, run.Code) << element;
        EXPECT_NE(std::string::npos, run.Err.find("row 2: it is no object")) << element << run.Err;
        EXPECT_EQ("Bern\tSwitzerland\nThun\tSwitzerland\n", Names()) << element;
    }
}

TEST_F(CitySource, UnknownJsonFieldsAreOfNoInterest)
{
    std::string object = Object(Place());
    object.insert(1,
                  R"("capital":true,"height":540,"names":["Berne"],"x":{"name":"no"},"y":null,)");
    const ToolRun run = Build("[" + object + "]");
    EXPECT_EQ("", run.Err);
    EXPECT_EQ("Bern\tSwitzerland\n", Names());
}

TEST_F(CitySource, BrokenJsonEndsTheBuildAndTellsWhere)
{
    const ToolRun run = Build("[" + Object(Place()) + ",\n{\"name\"");
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("source.tsv:2: behind row 2")) << run.Err;
}

TEST_F(CitySource, JsonThatIsNoArrayIsRefused)
{
    const ToolRun run = Build("{\"cities\": []}");
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("is no array of places")) << run.Err;
}

TEST_F(CitySource, DeepJsonIsNoReasonToFall)
{
    const ToolRun run = Build(std::string(200000, '['));
    EXPECT_EQ(1, run.Code);
}

TEST_F(CitySource, ASourceWithoutAnyGoodRowIsRefused)
{
    const ToolRun run = Build("bad\n");
    EXPECT_EQ(1, run.Code);
    EXPECT_NE(std::string::npos, run.Err.find("no place is left")) << run.Err;
    EXPECT_EQ("", Slurp(Database())) << "no database is written";
}
