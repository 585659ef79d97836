// Every program of the packages of both word sizes: how it may be loaded, what it needs, and what
// its version resource says.
#include "tests/package/PortableFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Win.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace
{

const char* const kNames[] = {"TavLumenarDialogs.dll", "aygshell.dll", "TavLumenarShell.exe",
                              "PegHelp.exe", "citydb.exe"};

std::string Folder(const std::string& machine)
{
    return std::string(TAV_UNPACKED "/TavLumenarDialogs-" TAV_VERSION "-") + machine + "/bin/";
}

// Machine and name of a program.
using Program = std::pair<std::string, std::string>;

class Package : public testing::TestWithParam<Program>
{
protected:
    std::string Path() const { return Folder(GetParam().first) + GetParam().second; }
};

std::vector<Program> Programs()
{
    std::vector<Program> programs;
    for (const char* machine : {"x86_64", "i686"})
        for (const char* name : kNames)
            programs.emplace_back(machine, name);
    return programs;
}

std::string TestName(const testing::TestParamInfo<Program>& info)
{
    std::string name = info.param.second + "_" + info.param.first;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

std::vector<char> VersionResource(const std::string& path)
{
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(path.c_str(), &ignored);
    std::vector<char> resource(size);
    if (size && !GetFileVersionInfoA(path.c_str(), 0, size, resource.data()))
        resource.clear();
    return resource;
}

std::string VersionText(const std::vector<char>& resource, const std::string& name)
{
    void* text = nullptr;
    UINT length = 0;
    const std::string key = "\\StringFileInfo\\040904B0\\" + name;
    if (resource.empty() || !VerQueryValueA(resource.data(), key.c_str(), &text, &length))
        return std::string();
    return static_cast<const char*>(text);
}

} // namespace

TEST_P(Package, HasTheWordSizeOfItsName)
{
    EXPECT_EQ(GetParam().first == "x86_64", CPortableFile(Path()).Is64Bit());
}

TEST_P(Package, IsLoadedAtAnotherAddressEachTimeAndRunsNoData)
{
    const CPortableFile file(Path());
    EXPECT_TRUE(file.Characteristics() & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
    EXPECT_TRUE(file.Characteristics() & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
    EXPECT_EQ(file.Is64Bit(),
              (file.Characteristics() & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA) != 0);
    EXPECT_TRUE(file.IsMovable());
}

TEST_P(Package, NeedsTheSystemsLibrariesAndOursAlone)
{
    const std::set<std::string> known = {
        "advapi32.dll", "aygshell.dll", "comctl32.dll",          "gdi32.dll",        "kernel32.dll",
        "msvcrt.dll",   "ole32.dll",    "oleaut32.dll",          "shell32.dll",      "shlwapi.dll",
        "user32.dll",   "version.dll",  "tavlumenardialogs.dll", "windowscodecs.dll"};
    const std::vector<std::string> libraries = CPortableFile(Path()).Libraries();
    EXPECT_THAT(libraries, testing::Contains("kernel32.dll"));
    for (const std::string& library : libraries)
        EXPECT_EQ(1u, known.count(library)) << library;
}

TEST_P(Package, CarriesNoTimeOfItsBuilding)
{
    // Nothing, or the fixed day that packing writes.
    EXPECT_THAT(CPortableFile(Path()).TimeStamp(), testing::AnyOf(0u, 315532800u));
}

TEST_P(Package, TellsItsNameAndTheProjectsVersion)
{
    const std::vector<char> resource = VersionResource(Path());
    EXPECT_EQ(GetParam().second, VersionText(resource, "OriginalFilename"));
    EXPECT_EQ("Tav Lumenar dialogs", VersionText(resource, "ProductName"));
    EXPECT_EQ(TAV_VERSION, VersionText(resource, "FileVersion"));
    EXPECT_EQ(TAV_VERSION, VersionText(resource, "ProductVersion"));
    EXPECT_NE("", VersionText(resource, "FileDescription"));
}

TEST_P(Package, HasTheVersionAlsoAsNumbers)
{
    const std::vector<char> resource = VersionResource(Path());
    void* found = nullptr;
    UINT length = 0;
    ASSERT_FALSE(resource.empty());
    ASSERT_TRUE(VerQueryValueA(resource.data(), "\\", &found, &length));
    const auto* numbers = static_cast<const VS_FIXEDFILEINFO*>(found);
    const std::string version = std::to_string(HIWORD(numbers->dwFileVersionMS)) + "." +
                                std::to_string(LOWORD(numbers->dwFileVersionMS)) + "." +
                                std::to_string(HIWORD(numbers->dwFileVersionLS));
    EXPECT_EQ(TAV_VERSION, version);
    const bool isLibrary = GetParam().second.find(".dll") != std::string::npos;
    EXPECT_EQ(static_cast<DWORD>(isLibrary ? VFT_DLL : VFT_APP), numbers->dwFileType);
}

INSTANTIATE_TEST_SUITE_P(Binaries, Package, testing::ValuesIn(Programs()), TestName);

TEST(Packages, HoldNoProgramThatIsNotLookedAt)
{
    for (const char* machine : {"x86_64", "i686"})
    {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(Folder(machine)))
            if (entry.path().extension() == ".exe" || entry.path().extension() == ".dll")
                found.insert(entry.path().filename().string());
        EXPECT_EQ(std::set<std::string>(std::begin(kNames), std::end(kNames)), found);
    }
}

TEST(Packages, TheModuleWithoutResourcesTakesAtMost400Kilobytes)
{
    for (const char* machine : {"x86_64", "i686"})
    {
        const CPortableFile module(Folder(machine) + "TavLumenarDialogs.dll");
        EXPECT_LE(module.SizeWithoutResources(), 400u * 1024) << machine;
        EXPECT_GT(module.SizeWithoutResources(), 100u * 1024) << machine;
    }
}

TEST(Packages, TheInstallersSayWhatTheyAre)
{
    for (const char* machine : {"x86_64", "i686"})
    {
        const std::string name =
            std::string("TavLumenarDialogs-" TAV_VERSION "-") + machine + "-setup.exe";
        const std::vector<char> resource = VersionResource(TAV_UNPACKED "/../" + name);
        EXPECT_EQ(name, VersionText(resource, "OriginalFilename"));
        EXPECT_EQ(TAV_VERSION, VersionText(resource, "FileVersion"));
        const CPortableFile file(TAV_UNPACKED "/../" + name);
        EXPECT_TRUE(file.Characteristics() & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
        EXPECT_TRUE(file.Characteristics() & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
    }
}
