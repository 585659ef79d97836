// What the module costs a host at its start. What it takes of a device's storage is looked at in
// tests/package.
#include "platform/Win.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace
{

constexpr double kLoadLimit = 2.0;

// Seconds for loading a library and letting go of it.
double TimeLoading(const wchar_t* name)
{
    const auto begin = std::chrono::steady_clock::now();
    const HMODULE library = LoadLibraryW(name);
    const bool freed = library && FreeLibrary(library);
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
    EXPECT_TRUE(freed) << name;
    return spent.count();
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

} // namespace

// Without a translation file, and with the system's libraries loaded already, as in any host.
TEST(FootprintVolume, LoadingTakesAtMostTwiceAsLongAsLoadingAnEmptyLibrary)
{
    const CRegistrySandbox registry;
    for (const wchar_t* name : {L"advapi32.dll", L"aygshell.dll", L"comctl32.dll", L"gdi32.dll",
                                L"shell32.dll", L"user32.dll"})
        ASSERT_NE(nullptr, LoadLibraryW(name));
    std::vector<double> module;
    std::vector<double> empty;
    for (int round = 0; round < 61; ++round)
    {
        empty.push_back(TimeLoading(L"empty.dll"));
        module.push_back(TimeLoading(L"TavLumenarDialogs.dll"));
    }
    const double ratio = Median(module) / Median(empty);
    RecordProperty("ratio", std::to_string(ratio));
    EXPECT_LE(ratio, kLoadLimit) << Median(module) * 1000 << " ms against " << Median(empty) * 1000
                                 << " ms";
}
