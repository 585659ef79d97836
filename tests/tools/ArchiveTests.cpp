// The three forms of a database, written and read.
#include "tools/citydb/Archive.h"

#include "tests/tools/SmallImage.h"
#include "tests/tools/ToolFixture.h"
#include "tools/citydb/Errors.h"

#include <cstring>

using namespace citydb;

namespace
{

std::vector<uint8_t> Read(const std::filesystem::path& path)
{
    const CLoadedImage image = ReadArchive(path);
    return {image.Data(), image.Data() + image.Size()};
}

std::string RefusalOf(const std::filesystem::path& path)
{
    try
    {
        ReadArchive(path);
    }
    catch (const CInputError& error)
    {
        return error.what();
    }
    return "none";
}

std::string SmallZip(const CTempFolder& folder)
{
    WriteArchive(folder.File("CitiesDb.dat"), ArchiveForm::Zip, small::Image());
    return folder.File("CitiesDb.dat");
}

} // namespace

TEST(CityArchive, EachFormIsReadAsItWasWritten)
{
    for (const ArchiveForm form : {ArchiveForm::Zip, ArchiveForm::Folder, ArchiveForm::Image})
    {
        CTempFolder folder;
        const std::filesystem::path path = ArchivePath(folder.Path(), form);
        WriteArchive(path, form, small::Image());
        EXPECT_EQ(small::Image(), Read(path));
        EXPECT_EQ(small::Image(), Read(folder.Path())) << "also by the folder that holds it";
    }
}

TEST(CityArchive, TheNamesAreThoseThatTheDialogLooksFor)
{
    CTempFolder folder;
    const std::filesystem::path there = folder.Path();
    const std::filesystem::path absent = there / "x";
    EXPECT_EQ(there / "CitiesDb.dat", ArchivePath(there, ArchiveForm::Zip));
    EXPECT_EQ(there / "CitiesDb.dat", ArchivePath(there, ArchiveForm::Folder));
    EXPECT_EQ(there / "Database.dat", ArchivePath(there, ArchiveForm::Image));
    EXPECT_EQ(absent, ArchivePath(absent, ArchiveForm::Zip));
    EXPECT_EQ(absent, ArchivePath(absent, ArchiveForm::Image));
    WriteArchive(there / "CitiesDb.dat", ArchiveForm::Folder, small::Image());
    EXPECT_TRUE(std::filesystem::is_regular_file(there / "CitiesDb.dat" / "Database.dat"));
}

TEST(CityArchive, AZipHoldsOneDeflatedMemberWithAFixedDate)
{
    CTempFolder folder;
    const std::string zip = Slurp(SmallZip(folder));
    const auto word = [&](size_t offset)
    {
        return static_cast<unsigned char>(zip[offset]) | static_cast<unsigned char>(zip[offset + 1])
                                                             << 8;
    };
    ASSERT_EQ("PK\x03\x04", zip.substr(0, 4));
    EXPECT_EQ(8, word(8)) << "deflated";
    EXPECT_EQ(0, word(10)) << "midnight";
    EXPECT_EQ(33, word(12)) << "on the first day of 1980";
    EXPECT_EQ("Database.dat", zip.substr(30, 12));
    EXPECT_LT(zip.size(), small::Image().size());
}

TEST(CityArchive, ZipsOfTheSameImageAreTheSameBytes)
{
    CTempFolder first;
    CTempFolder second;
    setenv("TZ", "Asia/Tokyo", 1);
    tzset();
    const std::string there = Slurp(SmallZip(first));
    unsetenv("TZ");
    tzset();
    EXPECT_EQ(there, Slurp(SmallZip(second)));
}

TEST(CityArchive, WritingReplacesTheWholeFileAndLeavesNothingBehind)
{
    CTempFolder folder;
    folder.Write("CitiesDb.dat", std::string(100000, 'x'));
    SmallZip(folder);
    EXPECT_EQ(small::Image(), Read(folder.Path()));
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder.Path()), {}));
}

TEST(CityArchive, AFailedWriteLeavesTheEarlierDatabase)
{
    CTempFolder folder;
    WriteArchive(folder.File("CitiesDb.dat"), ArchiveForm::Folder, small::Image());
    // A zip can't take the place of a folder that isn't empty.
    EXPECT_THROW(WriteArchive(folder.File("CitiesDb.dat"), ArchiveForm::Zip, {1, 2, 3}),
                 CInputError);
    EXPECT_EQ(small::Image(), Read(folder.Path()));
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder.Path()), {}));
}

TEST(CityArchive, MissingFoldersAreMade)
{
    CTempFolder folder;
    WriteArchive(folder.Path() / "a" / "b" / "CitiesDb.dat", ArchiveForm::Zip, small::Image());
    EXPECT_EQ(small::Image(), Read(folder.Path() / "a" / "b"));
}

TEST(CityArchive, AFolderThatCantBeMadeIsNamed)
{
    CTempFolder folder;
    folder.Write("file", "x");
    EXPECT_THROW(WriteArchive(folder.Path() / "file" / "x", ArchiveForm::Image, small::Image()),
                 CInputError);
}

TEST(CityArchive, WhatCantBeReadIsNamed)
{
    CTempFolder folder;
    EXPECT_NE(std::string::npos, RefusalOf(folder.File("absent")).find("can't be opened"));
    EXPECT_NE(
        std::string::npos,
        RefusalOf(folder.Path()).find("the folder holds neither Database.dat nor CitiesDb.dat"));
}

TEST(CityArchive, AZipWithoutTheMemberIsRefused)
{
    CTempFolder folder;
    std::string zip = Slurp(SmallZip(folder));
    for (size_t at = zip.find("Database"); at != std::string::npos; at = zip.find("Database"))
        zip.replace(at, 8, "Elsewher");
    EXPECT_NE(std::string::npos,
              RefusalOf(folder.Write("x", zip)).find("holds no member Database.dat"));
}

TEST(CityArchive, ADamagedZipIsRefusedWhereverItIsCutOrChanged)
{
    CTempFolder folder;
    const std::string zip = Slurp(SmallZip(folder));
    for (size_t size = 2; size < zip.size(); ++size)
        EXPECT_NE("none", RefusalOf(folder.Write("x", zip.substr(0, size)))) << size;
    for (size_t i = 0; i < zip.size(); ++i)
    {
        std::string changed = zip;
        changed[i] = static_cast<char>(changed[i] ^ 0xFF);
        const std::string file = folder.Write("x", changed);
        // Many bytes of an archive say nothing about its content: then it is the same.
        if (RefusalOf(file) == "none" && i >= 2)
            EXPECT_EQ(small::Image(), Read(file)) << i;
    }
}

TEST(CityArchive, AMemberThatClaimsMoreThanDeflateCanHoldIsRefused)
{
    CTempFolder folder;
    std::string zip = Slurp(SmallZip(folder));
    const size_t directory = zip.find("PK\x01\x02");
    ASSERT_NE(std::string::npos, directory);
    for (const size_t at : {size_t{22}, directory + 24})
        std::memcpy(&zip[at], "\x00\x00\x00\x0F", 4);
    EXPECT_NE(std::string::npos,
              RefusalOf(folder.Write("x", zip)).find("its member claims 251658240 bytes"));
}
