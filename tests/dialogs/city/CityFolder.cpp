#include "tests/dialogs/city/CityFolder.h"

#include "tests/support/ZipWriter.h"

#include <gtest/gtest.h>

namespace
{

std::string_view TextOfBytes(const Bytes& data)
{
    return {reinterpret_cast<const char*>(data.data()), data.size()};
}

} // namespace

CCityFolder::~CCityFolder()
{
    Uninstall();
}

void CCityFolder::InstallAsFolder(const Bytes& image, const wchar_t* member)
{
    const std::wstring folder = Path() + L"\\CitiesDb.dat";
    CreateDirectoryW(folder.c_str(), nullptr);
    Write((std::wstring(L"CitiesDb.dat\\") + member).c_str(), std::string(TextOfBytes(image)));
}

void CCityFolder::InstallAsArchive(const Bytes& image, bool packed, const char* member)
{
    Uninstall();
    const std::string_view data = TextOfBytes(image);
    const zip::Bytes archive =
        zip::Archive({packed ? zip::Deflated(member, data) : zip::Stored(member, data)});
    Write(L"CitiesDb.dat", std::string(TextOfBytes(archive)));
}

void CCityFolder::Uninstall()
{
    const std::wstring path = Path() + L"\\CitiesDb.dat";
    DeleteFileW((path + L"\\Database.dat").c_str());
    DeleteFileW((path + L"\\Other.dat").c_str());
    RemoveDirectoryW(path.c_str());
    DeleteFileW(path.c_str());
}
