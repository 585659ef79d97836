#include "tests/dialogs/menu/day/DayScript.h"

#include "resources/resource.h"
#include "tests/dialogs/menu/day/DayDevice.h"

namespace
{

using Editor = CDayEditor;

constexpr UINT kOff = 1;
constexpr UINT kOn = 2;

Lines operator+(Lines left, const Lines& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

// A whole key with its values, as changes.
Lines Key(const std::wstring& signedKey, const Lines& values)
{
    Lines lines = {signedKey};
    for (const std::wstring& value : values)
        lines.push_back(signedKey + L"|" + value);
    return lines;
}

// A new number for a value.
Lines Number(const std::wstring& value, int before, int after)
{
    return {L"-" + value + L"=" + std::to_wstring(before),
            L"+" + value + L"=" + std::to_wstring(after)};
}

std::wstring Text(const wchar_t* name, const std::wstring& text)
{
    return std::wstring(name) + L"=\"" + text + L"\"";
}

// The values of a link's or a file's new key.
Lines LinkTo(const std::wstring& target, const wchar_t* index, const wchar_t* text)
{
    return {Text(L"File", target), Text(L"ImagePath", target), index, Text(L"Text", text),
            L"User=1"};
}

// A user's new menu is added, a link, a file and a menu to it; a link stands behind an item that
// had no number of its own.
Sitting MakeAMenu(const std::wstring& startMenu)
{
    const std::wstring route = startMenu + L"\\Programs\\Route Planner.lnk";
    const std::wstring chess = startMenu + L"\\Programs\\Games\\Chess.lnk";
    return {
        {"adds a menu",
         6,
         [](Editor& e) { e.AddMenu(L"Office", L"Planning"); },
         Number(L"Customize|LastKey", 9, 10) +
             Key(L"+Customize\\Office\\User 10",
                 {L"Image=100", L"Index=9", L"Text=\"Planning\"", L"User=1"}),
         {},
         {L"+Office/Planning"}},
        {"adds a link to the menu",
         7,
         [](Editor& e) { e.AddLink(L"Office/Planning", L"Route Planner"); },
         Number(L"Customize|LastKey", 10, 11) + Key(L"+Customize\\Office\\User 10\\User 11",
                                                    LinkTo(route, L"Index=0", L"Route Planner")),
         {},
         {L"+Office/Planning/Route Planner"}},
        {"adds a file to the menu",
         7,
         [](Editor& e) { e.AddFile(L"Office/Planning", L"Planner", L"Trip.Planner.exe"); },
         Number(L"Customize|LastKey", 11, 12) +
             Key(L"+Customize\\Office\\User 10\\User 12", LinkTo(kDayFile, L"Index=1", L"Trip")),
         {},
         {L"+Office/Planning/Trip"}},
        {"adds a menu with an icon of its own to the menu",
         6,
         [](Editor& e) { e.AddMenu(L"Office/Planning", L"Trips", 5); },
         Number(L"Customize|LastKey", 12, 13) +
             Key(L"+Customize\\Office\\User 10\\User 13",
                 {L"Image=105", L"Index=2", L"Text=\"Trips\"", L"User=1"}),
         {},
         {L"+Office/Planning/Trips"}},
        {"adds a link behind an item without a number",
         9,
         [](Editor& e) { e.AddLink(L"Tools", L"Games/Chess"); },
         Number(L"Customize|LastKey", 13, 14) +
             Key(L"+Customize\\Tools\\User 14", LinkTo(chess, L"Index=8", L"Chess")) +
             Key(L"+Customize\\Tools\\Screen Copy", {L"Index=7"}),
         {},
         {L"+Tools/Chess"}},
        {"is done", 0, [](Editor& e) { e.EndSitting(); }},
    };
}

// Names, icons, places and boxes. The boxes are written at the end.
Sitting ChangeItems(const std::wstring& startMenu)
{
    const std::wstring route = startMenu + L"\\Programs\\Route Planner.lnk";
    return {
        {"renames a link",
         2,
         [route](Editor& e) { e.Edit(L"Office/Planning/Route Planner", route, L"Way Home"); },
         {L"-Customize\\Office\\User 10\\User 11|Text=\"Route Planner\"",
          L"+Customize\\Office\\User 10\\User 11|Text=\"Way Home\""},
         {},
         {L"-Office/Planning/Route Planner", L"+Office/Planning/Way Home"}},
        {"chooses an icon for a link",
         2,
         [route](Editor& e) { e.Edit(L"Office/Planning/Way Home", route, L"Way Home", 38); },
         {L"+Customize\\Office\\User 10\\User 11|Image=138"}},
        {"gives a link the icon of its target back",
         2,
         [](Editor& e)
         {
             e.Edit(L"Office/Dictaphone",
                    L"\\Windows\\Start Menu\\Programs\\Multimedia\\Voice Recorder.lnk",
                    L"Dictaphone", kLauncherIcons);
         },
         {L"-Customize\\Office\\User 6|Image=128"}},
        {"renames a menu",
         2,
         [](Editor& e) { e.Edit(L"Favorites", L"", L"Everyday"); },
         {L"-Customize\\User 1|Text=\"Favorites\"", L"+Customize\\User 1|Text=\"Everyday\""},
         {},
         {L"-Favorites", L"-Favorites/Notes", L"-Favorites/Music Player", L"-Favorites/On the Road",
          L"-Favorites/On the Road/Route Planner", L"+Everyday", L"+Everyday/Notes",
          L"+Everyday/Music Player", L"+Everyday/On the Road",
          L"+Everyday/On the Road/Route Planner"}},
        {"moves a menu that a user added up", 2, [](Editor& e) { e.MoveUp(L"Everyday"); },
         Number(L"Customize\\User 1|Index", 4, 3) + Number(L"Customize\\Calendar|Index", 3, 4)},
        {"moves a built-in item down", 3, [](Editor& e) { e.MoveDown(L"Contacts"); },
         Key(L"+Customize\\Contacts", {L"Index=2"}) + Number(L"Customize\\Messaging|Index", 2, 1)},
        {"switches an item off and another on", 0,
         [](Editor& e)
         {
             e.SwitchBox(L"Calendar", kOff);
             e.SwitchBox(L"Task Switcher", kOn);
         }},
        {"is done",
         2,
         [](Editor& e) { e.EndSitting(); },
         {L"+Customize\\Calendar|Inactive=1", L"-Customize\\Task Switcher|Inactive=1",
          L"+Customize\\Task Switcher|Inactive=0"}},
    };
}

// Layouts, orders and flags of a user's menu, of built-in ones and of the root.
Sitting SetOptions()
{
    return {
        {"makes the new menu a grid for keys with the most used first",
         5,
         [](Editor& e)
         {
             e.SetOptions(L"Office/Planning", L"Menu Options ('Planning')",
                          {IDC_LAYOUT_GRID, IDC_MOST_USED_FIRST, IDC_HARDWARE_NAVIGATION});
         },
         Number(L"Customize|LastKey", 14, 15) +
             Lines{L"+Customize\\Office\\User 10|DrawType=\"Grid\"",
                   L"+Customize\\Office\\User 10|Rating=\"User 15\"",
                   L"+Customize\\Office\\User 10|RtFlags=7"},
         {L"Customize\\Office\\User 10|RtFlags=6"}},
        {"has the most used items of a built-in menu first", 5,
         [](Editor& e)
         { e.SetOptions(L"Tools", L"Menu Options ('Tools')", {IDC_MOST_USED_FIRST}); },
         Number(L"Customize|LastKey", 15, 16) +
             Lines{L"+Customize\\Tools|Rating=\"User 16\"", L"+Customize\\Tools|RtFlags=6"}},
        {"makes a rated grid a list in its own order",
         2,
         [](Editor& e) {
             e.SetOptions(L"Games", L"Menu Options ('Games')",
                          {IDC_LAYOUT_LIST, IDC_MOST_USED_FIRST});
         },
         {L"+Customize\\Games|DrawType=\"List\"", L"+Customize\\Games|RtFlags=5"}},
        {"arranges the root for keys",
         3,
         [](Editor& e) { e.SetOptions(L"", L"Menu Options ('')", {IDC_HARDWARE_NAVIGATION}); },
         {L"+Customize|DrawType=\"Grid\"", L"+Customize|RtFlags=1"},
         {L"Customize|RtFlags=0"}},
        {"is done", 0, [](Editor& e) { e.EndSitting(); }},
    };
}

// Items go, with what is below them and with their usage list.
Sitting RemoveItems(const std::wstring& startMenu)
{
    const std::wstring route = startMenu + L"\\Programs\\Route Planner.lnk";
    return {
        {"moves a menu up past a file", 2, [](Editor& e) { e.MoveUp(L"Office/Planning/Trips"); },
         Number(L"Customize\\Office\\User 10\\User 13|Index", 2, 1) +
             Number(L"Customize\\Office\\User 10\\User 12|Index", 1, 2)},
        {"removes a link",
         1,
         [](Editor& e) { e.Remove(L"Office/Planning/Way Home"); },
         Key(L"-Customize\\Office\\User 10\\User 11",
             LinkTo(route, L"Index=0", L"Way Home") + Lines{L"Image=138"}),
         {},
         {L"-Office/Planning/Way Home"}},
        {"looks at the commands for a neighbour of the gap", 2,
         [](Editor& e) { e.LookAtCommands(L"Office/Planning/Trip"); },
         Number(L"Customize\\Office\\User 10\\User 13|Index", 1, 0) +
             Number(L"Customize\\Office\\User 10\\User 12|Index", 2, 1)},
        {"removes a menu with all that is in it",
         6,
         [](Editor& e) { e.Remove(L"Everyday"); },
         Key(L"-Customize\\User 1",
             {L"DrawType=\"Grid\"", L"Image=101", L"Index=3", L"Rating=\"User 9\"", L"RtFlags=6",
              L"Text=\"Everyday\"", L"User=1"}) +
             Key(L"-Customize\\User 1\\User 2",
                 LinkTo(L"\\Windows\\Start Menu\\Programs\\Notes.lnk", L"Index=0", L"Notes")) +
             Key(L"-Customize\\User 1\\User 3",
                 LinkTo(L"\\Windows\\Start Menu\\Programs\\Multimedia\\Music Player.lnk",
                        L"Index=1", L"Music Player")) +
             Key(L"-Customize\\User 1\\User 4",
                 {L"Image=138", L"Index=2", L"Text=\"On the Road\"", L"User=1"}) +
             Key(L"-Customize\\User 1\\User 4\\User 5",
                 LinkTo(L"\\Windows\\Start Menu\\Programs\\Route Planner.lnk", L"Index=0",
                        L"Route Planner")) +
             Key(L"-Ratings\\User 9",
                 {L"0=\"l:\\Windows\\Start Menu\\Programs\\Multimedia\\Music Player.lnk\"",
                  L"1=\"l:\\Windows\\Start Menu\\Programs\\Notes.lnk\"",
                  L"Index=type 3: 0000050001000300", L"Timestamp=8"}),
         {},
         {L"-Everyday", L"-Everyday/Notes", L"-Everyday/Music Player", L"-Everyday/On the Road",
          L"-Everyday/On the Road/Route Planner"}},
        {"hides the new menu and is done",
         1,
         [](Editor& e)
         {
             e.SwitchBox(L"Office/Planning", kOff);
             e.EndSitting();
         },
         {L"+Customize\\Office\\User 10|Inactive=1"}},
    };
}

// The gap that the removal left among the root's items is closed by an addition; then there is
// much that comes to nothing.
Sitting TidyUp()
{
    return {
        {"adds a menu to the root",
         16,
         [](Editor& e) { e.AddMenu(L"", L"Travel", 30); },
         Number(L"Customize|LastKey", 16, 17) +
             Key(L"+Customize\\User 17",
                 {L"Image=130", L"Index=13", L"Text=\"Travel\"", L"User=1"}) +
             Number(L"Customize\\Calendar|Index", 4, 3) + Number(L"Customize\\Office|Index", 5, 4) +
             Number(L"Customize\\Multimedia|Index", 6, 5) +
             Number(L"Customize\\Games|Index", 7, 6) + Number(L"Customize\\Tools|Index", 8, 7) +
             Number(L"Customize\\Connect|Index", 9, 8) + Number(L"Customize\\Help|Index", 10, 9) +
             Number(L"Customize\\Settings|Index", 11, 10) +
             Number(L"Customize\\Task Switcher|Index", 12, 11) +
             Number(L"Customize\\Accessories|Index", 13, 12),
         {},
         {L"+Travel"}},
        {"adds a menu without a name", 0, [](Editor& e) { e.AddMenu(L"", L""); }},
        {"opens and cancels every sub-dialog", 0,
         [](Editor& e)
         {
             e.OpenAndCancel(L"Travel", ID_EDIT_ITEM, L"Edit Item");
             e.OpenAndCancel(L"Office/Dictaphone", ID_EDIT_ITEM, L"Edit Item");
             e.OpenAndCancel(L"Travel", ID_ADD_MENU, L"Edit Item");
             e.OpenAndCancel(L"Travel", ID_ADD_LINK, L"Select Link");
             e.OpenAndCancel(L"Travel", ID_ADD_FILE, L"Select File");
             e.OpenAndCancel(L"Travel", ID_MENU_OPTIONS, L"Menu Options ('Travel')");
         }},
        {"wants to remove what the product brings", 0,
         [](Editor& e) { e.Remove(L"Office/Notes"); }},
        {"moves the settings up", 2, [](Editor& e) { e.MoveUp(L"Settings"); },
         Number(L"Customize\\Settings|Index", 10, 9) + Number(L"Customize\\Help|Index", 9, 10)},
        {"moves a menu with children down", 2, [](Editor& e) { e.MoveDown(L"Multimedia"); },
         Number(L"Customize\\Multimedia|Index", 5, 6) + Number(L"Customize\\Games|Index", 6, 5)},
        {"switches the settings off, which can't be, and is done", 0,
         [](Editor& e)
         {
             e.SwitchBox(L"Settings", kOff);
             e.EndSitting();
         }},
    };
}

// Boxes that are not confirmed.
Sitting ThinkTwice()
{
    return {
        {"switches an item off but cancels", 0,
         [](Editor& e)
         {
             e.SwitchBox(L"Programs", kOff);
             e.Cancel();
         }},
    };
}

} // namespace

std::vector<Sitting> EditingDay(const std::wstring& startMenu)
{
    return {MakeAMenu(startMenu),
            ChangeItems(startMenu),
            SetOptions(),
            RemoveItems(startMenu),
            TidyUp(),
            ThinkTwice()};
}
