// The sample device's plug-ins of the Now screen: every kind of registration, and what the module
// makes of them.
#include "device/SamplePlugins.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>

#include "device/Keys.h"
#include "device/Seed.h"
#include "dialogs/now/PluginList.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

using sample::PluginKey;
using testing::UnorderedElementsAre;

bool IsMalformed(const PluginKey& plugin)
{
    return !plugin.Text || !*plugin.Text || plugin.Kind < 0 || plugin.Kind > 3;
}

std::vector<std::wstring> KeyNames(const std::vector<Plugin>& plugins)
{
    std::vector<std::wstring> names;
    for (const Plugin& plugin : plugins)
        names.push_back(plugin.KeyName);
    return names;
}

class SamplePlugins : public testing::Test
{
protected:
    SamplePlugins() : m_user(HKEY_CURRENT_USER) { seed::WriteRegistry(L"C:\\Device"); }

    CRegistrySandbox m_machine;
    CRegistrySandbox m_user;
};

} // namespace

TEST_F(SamplePlugins, ThoseThatAreInstalledAreListed)
{
    EXPECT_THAT(KeyNames(PeekPlugins()),
                UnorderedElementsAre(L"Agenda", L"Mail", L"Sky", L"SkyWatch", L"RingControl",
                                     L"Birthdays"));
}

TEST_F(SamplePlugins, TwoOfThemAreInUse)
{
    std::vector<std::wstring> used;
    for (const Plugin& plugin : PeekPlugins())
        if (plugin.IsUsed)
            used.push_back(plugin.KeyName);
    EXPECT_THAT(used, UnorderedElementsAre(L"Agenda", L"RingControl"));
}

TEST_F(SamplePlugins, EachKindHasOneToChoose)
{
    std::set<int32_t> kinds;
    for (const Plugin& plugin : PeekPlugins())
        kinds.insert(plugin.Kind);
    EXPECT_THAT(kinds, UnorderedElementsAre(0, 1, 2, 3));
}

TEST_F(SamplePlugins, LookingAtThemDeletesNothing)
{
    const std::wstring before = m_machine.Dump(L"SOFTWARE");
    PeekPlugins();
    EXPECT_EQ(before, m_machine.Dump(L"SOFTWARE"));
}

TEST_F(SamplePlugins, TheMalformedOnesGoWhenTheDialogReadsThemAndTheHiddenOnesStay)
{
    LoadPlugins();
    for (const PluginKey& plugin : sample::PluginKeys())
    {
        const std::wstring path = std::wstring(keys::kPlugins) + L"\\" + plugin.Name;
        EXPECT_EQ(!IsMalformed(plugin), m_machine.KeyExists(path.c_str())) << plugin.Name;
    }
}

TEST_F(SamplePlugins, TheUsersCheckKeyGoesWithTheRest)
{
    EXPECT_TRUE(m_user.KeyExists(sample::kInstalledForUser));
    seed::EraseRegistry();
    EXPECT_FALSE(m_user.KeyExists(sample::kInstalledForUser));
}

TEST(SamplePluginTable, HasEveryKindOfRegistration)
{
    const auto keys = sample::PluginKeys();
    EXPECT_EQ(4, std::count_if(keys.begin(), keys.end(), IsMalformed));
    EXPECT_EQ(4, std::count_if(keys.begin(), keys.end(),
                               [](const PluginKey& key) { return key.BuiltIn == 1; }));
    EXPECT_GE(std::count_if(keys.begin(), keys.end(),
                            [](const PluginKey& key) { return key.MachineCheck && key.UserCheck; }),
              1);
}
