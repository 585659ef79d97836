// A whole editing day: each command leaves in the registry exactly what the rules of the menu say,
// and the editor shows it again when it is reopened.
#include "tests/dialogs/menu/day/DayDevice.h"
#include "tests/dialogs/menu/day/DayScript.h"
#include "tests/dialogs/menu/day/DayTrees.h"
#include "tests/dialogs/menu/day/RegistryWrites.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

Lines Sorted(Lines lines)
{
    std::sort(lines.begin(), lines.end());
    return lines;
}

// What an open editor does not show as a reopened one will.
struct Correction
{
    std::wstring shown;
    std::wstring reopened;
};
using Corrections = std::vector<Correction>;

std::wstring Corrected(std::wstring tree, const Corrections& corrections)
{
    for (const Correction& correction : corrections)
    {
        const size_t place = tree.find(correction.shown);
        EXPECT_NE(std::wstring::npos, place);
        if (place != std::wstring::npos)
            tree.replace(place, correction.shown.size(), correction.reopened);
    }
    return tree;
}

class AnEditingDay : public testing::Test
{
protected:
    // Lives a sitting; `check` is called after each of its commands.
    template <class Check>
    void Live(const Sitting& sitting, Check check)
    {
        editor.Open();
        for (const DayStep& step : sitting)
        {
            const testing::ScopedTrace trace(__FILE__, __LINE__, "The user " + step.name);
            step.act(editor);
            check(step);
        }
    }

    CDayDevice device;
    CDayLauncher launcher;
    CDayEditor editor;
    const std::vector<Sitting> day = EditingDay(device.StartMenuPath());
};

} // namespace

TEST_F(AnEditingDay, LeavesExactlyWhatTheRulesSayAfterEachCommand)
{
    DeviceState before = device.State();
    for (const Sitting& sitting : day)
        Live(sitting,
             [&](const DayStep& step)
             {
                 const DeviceState after = device.State();
                 EXPECT_EQ(Sorted(step.changes), Sorted(DumpDifference(before, after)));
                 before = after;
             });
}

TEST_F(AnEditingDay, ShowsTheSameTreeWheneverItIsReopened)
{
    // Moving a menu hides its children and gives the settings a box until then.
    const Correction everyday = {L"  + Everyday\n", L"  + Everyday\n"
                                                    L"    + Notes\n"
                                                    L"    + Music Player\n"
                                                    L"    + On the Road\n"
                                                    L"      + Route Planner\n"};
    const Correction settings = {L"  - Settings\n", L"    Settings\n"};
    const Correction multimedia = {L"  + Multimedia\n", L"  + Multimedia\n"
                                                        L"    + Music Player\n"
                                                        L"    + Video Player\n"
                                                        L"    + Pictures\n"
                                                        L"    - Camera\n"
                                                        L"    + Voice Recorder\n"};
    const std::vector<Corrections> sittings = {{}, {everyday}, {}, {}, {settings, multimedia}};
    editor.Open();
    EXPECT_EQ(kMorningTree, editor.tree.Dump());
    editor.Done();
    for (size_t i = 0; i < sittings.size(); ++i)
    {
        Live(day[i], [](const DayStep&) {});
        editor.Open();
        EXPECT_EQ(Corrected(editor.treeAtEnd, sittings[i]), editor.tree.Dump()) << i;
        editor.Done();
    }
    Live(day.back(), [](const DayStep&) {});
    editor.Open();
    EXPECT_EQ(kEveningTree, editor.tree.Dump());
}

TEST_F(AnEditingDay, WritesAsOftenAsTheRulesSay)
{
    editor.module = std::make_unique<CModule>();
    const CRegistryWrites writes(editor.module->Handle());
    int before = 0;
    for (const Sitting& sitting : day)
        Live(sitting,
             [&](const DayStep& step)
             {
                 EXPECT_EQ(step.writes, writes.Count() - before);
                 before = writes.Count();
             });
}
