// The built DLL as a file: what it exports and what it needs.
#include "tests/module/FunctionLists.h"
#include "tests/support/ImportTable.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace
{

using Names = std::set<std::string>;

class Binary : public testing::Test
{
protected:
    CRegistrySandbox registry;
    CModule module;
};

std::string LowerCase(std::string text)
{
    CharLowerBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

// The lines of one of the test program's lists, without comments.
Names ReadList(UINT id)
{
    const HMODULE self = GetModuleHandleW(nullptr);
    const HRSRC resource = FindResourceW(self, MAKEINTRESOURCEW(id), RT_RCDATA);
    const auto* data = static_cast<const char*>(LockResource(LoadResource(self, resource)));
    std::istringstream stream(std::string(data, SizeofResource(self, resource)));
    Names names;
    for (std::string line; std::getline(stream, line);)
        if (!line.empty() && line[0] != '#')
            names.insert(line.substr(0, line.find('\r')));
    return names;
}

} // namespace

TEST_F(Binary, ExportsTheFiveFunctionsAndNothingElse)
{
    EXPECT_EQ((std::vector<std::string>{"CustomizeHome", "CustomizeMenu", "CustomizeNow",
                                        "InstallWizard", "SelectCity"}),
              ExportsOf(module.Handle()));
}

TEST_F(Binary, NeedsTheSystemsLibrariesAndTheShellsAlone)
{
    const Names allowed = {"advapi32.dll", "aygshell.dll", "comctl32.dll", "gdi32.dll",
                           "kernel32.dll", "msvcrt.dll",   "shell32.dll",  "user32.dll"};
    for (const ImportedFunction& import : ImportsOf(module.Handle()))
        EXPECT_EQ(1u, allowed.count(LowerCase(import.dll))) << import.dll;
}

TEST_F(Binary, TakesFromTheShellItsDocumentedFunctionsAlone)
{
    const Names documented = {"SHInitDialog",       "SHCreateMenuBar", "SHFindMenuBar",
                              "SHRecognizeGesture", "SHSipInfo",       "SHInitExtraControls"};
    int taken = 0;
    for (const ImportedFunction& import : ImportsOf(module.Handle()))
        if (LowerCase(import.dll) == "aygshell.dll")
        {
            EXPECT_EQ(1u, documented.count(import.name)) << import.name;
            ++taken;
        }
    EXPECT_GT(taken, 0);
}

TEST_F(Binary, CallsNoFunctionThatTheHandheldLacks)
{
    Names known = ReadList(IDR_HANDHELD_FUNCTIONS);
    ASSERT_FALSE(known.empty());
    known.merge(ReadList(IDR_OTHER_FUNCTIONS));
    for (const ImportedFunction& import : ImportsOf(module.Handle()))
    {
        const std::string dll = LowerCase(import.dll);
        // The compiler's C library goes with the compiler.
        if (dll == "msvcrt.dll" || dll == "aygshell.dll")
            continue;
        EXPECT_EQ(1u, known.count(import.name)) << import.dll << " " << import.name;
    }
}

TEST_F(Binary, TheListOfExceptionsHoldsNothingThatIsNotNeeded)
{
    Names imported;
    for (const ImportedFunction& import : ImportsOf(module.Handle()))
        imported.insert(import.name);
    for (const std::string& name : ReadList(IDR_OTHER_FUNCTIONS))
        EXPECT_EQ(1u, imported.count(name)) << name;
}

TEST_F(Binary, CanBeLoadedAndUnloadedAgainAndAgain)
{
    for (int i = 0; i < 20; ++i)
    {
        const CModule again;
        EXPECT_NE(nullptr, again.CustomizeMenu);
    }
}

TEST(BinaryLoading, IsLoadedAndUnloadedCompletely)
{
    CRegistrySandbox registry;
    for (int i = 0; i < 20; ++i)
    {
        {
            const CModule module;
        }
        EXPECT_EQ(nullptr, GetModuleHandleW(L"TavLumenarDialogs.dll"));
    }
}
