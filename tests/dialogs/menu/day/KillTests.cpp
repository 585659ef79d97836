// The process is killed in the middle of the editing day: what it leaves loads as a menu, and
// nothing is lost but what the command in progress was changing.
#include "tests/dialogs/menu/day/DayDevice.h"
#include "tests/dialogs/menu/day/DayScript.h"
#include "tests/dialogs/menu/day/DayTrees.h"
#include "tests/dialogs/menu/day/RegistryWrites.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/LongRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <sstream>

namespace
{

using LineSet = std::set<std::wstring>;

// The killings are shared out to as many cases; without TAV_LONG there are this many of them.
constexpr int kCases = 10;
constexpr int kKillings = 50;
constexpr DWORD kPatience = 40000;

// Lives a sitting and dies before one of its writes. The argument: the numbers of the write and of
// the sitting and the device, each behind a bar but the first. Returns 0 if it lives.
CHILD_ENTRY(LiveASitting)
{
    std::wistringstream parts(argument);
    std::wstring write, number, device;
    std::getline(parts, write, L'|');
    std::getline(parts, number, L'|');
    std::getline(parts, device);
    const std::wstring startMenu = JoinDayDevice(device);
    const CDayLauncher launcher;
    CDayEditor editor;
    editor.module = std::make_unique<CModule>();
    const CRegistryWrites writes(editor.module->Handle(), std::stoi(write));
    editor.Open();
    const Sitting sitting = EditingDay(startMenu)[std::stoul(number)];
    for (const DayStep& step : sitting)
        step.act(editor);
    return 0;
}

// Where in the day a write is.
struct Moment
{
    // The sitting, the command in it, and the write's number, from 1, in the sitting.
    size_t sitting = 0;
    size_t step = 0;
    int write = 0;
};

int WritesIn(const Sitting& sitting)
{
    return std::accumulate(sitting.begin(), sitting.end(), 0,
                           [](int sum, const DayStep& step) { return sum + step.writes; });
}

int WritesIn(const std::vector<Sitting>& day)
{
    return std::accumulate(day.begin(), day.end(), 0,
                           [](int sum, const Sitting& sitting) { return sum + WritesIn(sitting); });
}

// The moment of the day's write of that number, from 1.
Moment MomentOf(int write, const std::vector<Sitting>& day)
{
    Moment moment = {0, 0, write};
    while (moment.write > WritesIn(day[moment.sitting]))
        moment.write -= WritesIn(day[moment.sitting++]);
    for (int left = moment.write; left > day[moment.sitting][moment.step].writes; ++moment.step)
        left -= day[moment.sitting][moment.step].writes;
    return moment;
}

LineSet LinesOf(const std::wstring& text)
{
    std::wistringstream stream(text);
    LineSet lines;
    for (std::wstring line; std::getline(stream, line);)
        lines.insert(line);
    return lines;
}

// Adds what stands behind "+" and takes away what stands behind "-".
void Apply(const Lines& changes, LineSet& lines)
{
    for (const std::wstring& change : changes)
    {
        if (change[0] == L'+')
            lines.insert(change.substr(1));
        else
            lines.erase(change.substr(1));
    }
}

// A set before and after a command.
struct Transition
{
    LineSet before;
    LineSet after;
};

// What the command of a moment makes of a morning's set.
Transition ChangesAt(const Moment& moment, const std::vector<Sitting>& day, LineSet lines,
                     Lines DayStep::*changes)
{
    for (size_t i = 0; i < moment.sitting; ++i)
        for (const DayStep& step : day[i])
            Apply(step.*changes, lines);
    const Sitting& sitting = day[moment.sitting];
    for (size_t i = 0; i < moment.step; ++i)
        Apply(sitting[i].*changes, lines);
    Transition transition = {lines, lines};
    Apply(sitting[moment.step].*changes, transition.after);
    return transition;
}

// The values and keys, or nodes, that lines are about: without the data.
LineSet SubjectsOf(const LineSet& lines)
{
    LineSet subjects;
    for (const std::wstring& line : lines)
        subjects.insert(line.substr(0, line.find(L'=')));
    return subjects;
}

Lines Missing(const LineSet& wanted, const LineSet& there)
{
    Lines missing;
    std::set_difference(wanted.begin(), wanted.end(), there.begin(), there.end(),
                        std::back_inserter(missing));
    return missing;
}

// What a killed command may have changed: of what comes with the command a part may be there, of
// what goes with it a part may be gone, and a value that it changes is the old or the new one or
// one of `passing`. Whatever is there before and after the command must be there now; everything
// that the command has nothing to do with must be unchanged; and there must be nothing else.
void ExpectBetween(const Transition& transition, const Lines& passing, const LineSet& now)
{
    const LineSet before = SubjectsOf(transition.before);
    LineSet kept;
    for (const std::wstring& subject : SubjectsOf(transition.after))
        if (before.count(subject))
            kept.insert(subject);
    EXPECT_EQ(Lines{}, Missing(kept, SubjectsOf(now))) << "lost";

    LineSet possible = transition.before;
    possible.insert(transition.after.begin(), transition.after.end());
    possible.insert(passing.begin(), passing.end());
    EXPECT_EQ(Lines{}, Missing(now, possible)) << "never to be there";
}

// The paths of the item that a command was adding as long as it has no name, which is written last.
Lines NamelessNodes(const DayStep& step)
{
    Lines nameless;
    for (const std::wstring& node : step.nodes)
    {
        if (node[0] == L'-')
            return {};
        const size_t name = node.rfind(L'/');
        nameless.push_back(name == std::wstring::npos ? L"" : node.substr(1, name));
    }
    return nameless;
}

class KilledDay : public testing::TestWithParam<int>
{
protected:
    // Checks all that has to hold when the process dies before that write.
    static void KillAt(int write)
    {
        const testing::ScopedTrace trace(__FILE__, __LINE__,
                                         "killed at write " + std::to_string(write));
        CDayDevice device;
        const std::vector<Sitting> day = EditingDay(device.StartMenuPath());
        const Moment moment = MomentOf(write, day);
        const DayStep& step = day[moment.sitting][moment.step];
        const testing::ScopedTrace traceOfStep(__FILE__, __LINE__, "when the user " + step.name);
        const LineSet morning = LinesOf(device.State());
        Skip(moment.sitting, day, device);
        LiveUntil(moment, device);
        ExpectBetween(ChangesAt(moment, day, morning, &DayStep::changes), step.passing,
                      LinesOf(device.State()));
        CheckEditor(device, ChangesAt(moment, day, NodesIn(kMorningTree), &DayStep::nodes),
                    NamelessNodes(step));
    }

private:
    // Leaves the device as the sittings before that one do.
    static void Skip(size_t sitting, const std::vector<Sitting>& day, CDayDevice& device)
    {
        for (size_t i = 0; i < sitting; ++i)
            for (const DayStep& step : day[i])
                device.Change(step.changes);
    }

    static void LiveUntil(const Moment& moment, const CDayDevice& device)
    {
        const CChildProcess child(L"LiveASitting", std::to_wstring(moment.write) + L"|" +
                                                       std::to_wstring(moment.sitting) + L"|" +
                                                       device.Address());
        ASSERT_TRUE(child.WaitForEnd(kPatience));
        EXPECT_EQ(kEndedAtWrite, child.ExitCode());
    }

    // The editor opens over what is left, shows it, can be worked and ends, and what it writes
    // is what it was told to.
    static void CheckEditor(const CDayDevice& device, const Transition& nodes,
                            const Lines& nameless)
    {
        const CDayLauncher launcher;
        const DeviceState left = device.State();
        const DWORD number = device.LastKey();
        CDayEditor editor;
        editor.Open();
        ExpectBetween(nodes, nameless, NodesIn(editor.tree.Dump()));
        editor.AddMenu(L"Games/Puzzles/Number Grid", L"Afterwards");
        editor.Done();
        const std::wstring before = std::to_wstring(number);
        const std::wstring after = std::to_wstring(number + 1);
        const std::wstring grid = L"+Customize\\Games\\Puzzles\\Number Grid";
        const std::wstring menu = grid + L"\\User " + after;
        EXPECT_EQ((Lines{L"+Customize\\Games\\Puzzles", grid, menu, menu + L"|Image=100",
                         menu + L"|Index=2", menu + L"|Text=\"Afterwards\"", menu + L"|User=1",
                         L"+Customize|LastKey=" + after, L"-Customize|LastKey=" + before}),
                  DumpDifference(left, device.State()));
    }
};

// The writes of one case: all of them, or those that are evenly spread.
std::vector<int> WritesOfCase(int number)
{
    const int all = WritesIn(EditingDay(L""));
    const int killings = IsLongRun() ? all : kKillings;
    std::vector<int> writes;
    for (int i = number; i < killings; i += kCases)
        writes.push_back(1 + i * (all - 1) / (killings - 1));
    return writes;
}

} // namespace

TEST_P(KilledDay, LeavesAMenuThatLoadsWithNothingLostButTheCommandInProgress)
{
    for (const int write : WritesOfCase(GetParam()))
        KillAt(write);
}

INSTANTIATE_TEST_SUITE_P(AtEvenlySpreadWrites, KilledDay, testing::Range(0, kCases));
