// An installation folder with a city database, in either of the two forms that it may have.
#pragma once

#include "tests/native/CityImages.h"
#include "tests/support/TranslationFixture.h"

#include <string>

// A temporary folder that is deleted with all its contents at the end.
class CCityFolder : public CTempFolder
{
public:
    CCityFolder() = default;
    ~CCityFolder();
    CCityFolder(const CCityFolder&) = delete;
    CCityFolder& operator=(const CCityFolder&) = delete;

    // Makes "CitiesDb.dat" a folder with one file in it.
    void InstallAsFolder(const Bytes& image, const wchar_t* member = L"Database.dat");
    // Makes "CitiesDb.dat" a zip archive with one member, packed or not.
    void InstallAsArchive(const Bytes& image, bool packed, const char* member = "Database.dat");
    // Takes the database away again.
    void Uninstall();
};
