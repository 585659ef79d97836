#include "device/SampleMenu.h"

namespace sample
{
namespace
{

constexpr MenuKey Product(const wchar_t* path, const wchar_t* text)
{
    return MenuKey(Layer::Product, path, text);
}

constexpr MenuKey Shared(const wchar_t* path, const wchar_t* text)
{
    return MenuKey(Layer::Shared, path, text);
}

constexpr MenuKey Customised(const wchar_t* path)
{
    return MenuKey(Layer::Customised, path);
}

constexpr MenuKey UserMenu(const wchar_t* path, const wchar_t* text)
{
    return MenuKey(Layer::Customised, path, text).OfUser();
}

constexpr MenuKey UserLink(const wchar_t* path, const wchar_t* text, const wchar_t* file)
{
    return MenuKey(Layer::Customised, path, text).OfUser().Target(file);
}

const MenuKey kKeys[] = {
    // What the product brings.
    MenuKey(Layer::Product, L"").Container().Grid(),
    Product(L"Programs", L"Programs").At(0).Icon(100),
    Product(L"Contacts", L"Contacts").At(1).Icon(102),
    Product(L"Calendar", L"Calendar").At(2).Icon(103),
    Product(L"Messaging", L"Messaging").At(3).Icon(104),

    Product(L"Office", L"Office").At(4).Icon(105).Container().Grid().Rated(L"Office").Flags(6),
    Product(L"Office\\Text Editor", L"Text Editor").At(0).Icon(106),
    Product(L"Office\\Spreadsheet", L"Spreadsheet").At(1).Icon(107),
    Product(L"Office\\Presentation Viewer", L"Presentation Viewer").At(2).Icon(108),
    Product(L"Office\\Notes", L"Notes").At(3).Icon(109),
    Product(L"Office\\Tasks", L"Tasks").At(4).Icon(139),
    Product(L"Office\\Document Reader", L"Document Reader").At(5).Icon(109),
    Product(L"Office\\Templates", L"Templates").At(6).Icon(100).Container().List(),
    Product(L"Office\\Templates\\Letters", L"Letters").At(0).Icon(100).Container(),
    Product(L"Office\\Templates\\Letters\\Business Letter", L"Business Letter").At(0).Icon(109),
    Product(L"Office\\Templates\\Letters\\Private Letter", L"Private Letter").At(1).Icon(109),
    Product(L"Office\\Templates\\Invoice", L"Invoice").At(1).Icon(107),
    Product(L"Office\\Templates\\Travel Report", L"Travel Report").At(2).Icon(107),

    Product(L"Multimedia", L"Multimedia").At(5).Icon(110).Container().Grid(),
    Product(L"Multimedia\\Music Player", L"Music Player").At(0).Icon(111),
    Product(L"Multimedia\\Video Player", L"Video Player").At(1).Icon(113),
    Product(L"Multimedia\\Pictures", L"Pictures").At(2).Icon(115),
    Product(L"Multimedia\\Camera", L"Camera").At(3).Icon(114),
    Product(L"Multimedia\\Voice Recorder", L"Voice Recorder").At(4).Icon(128),

    Product(L"Games", L"Games").At(6).Icon(116).Container().Grid().Rated(L"Games").Flags(7),
    Product(L"Games\\Card Games", L"Card Games").At(0).Icon(117).Container().List(),
    Product(L"Games\\Card Games\\Solitaire", L"Solitaire").At(0).Icon(117),
    Product(L"Games\\Card Games\\Patience", L"Patience").At(1).Icon(117),
    Product(L"Games\\Board Games", L"Board Games").At(1).Icon(117).Container().List(),
    Product(L"Games\\Board Games\\Chess", L"Chess").At(0).Icon(117),
    Product(L"Games\\Board Games\\Draughts", L"Draughts").At(1).Icon(117),
    Product(L"Games\\Board Games\\Four in a Row", L"Four in a Row").At(2).Icon(117),
    Product(L"Games\\Puzzles", L"Puzzles").At(2).Icon(117).Container(),
    Product(L"Games\\Puzzles\\Sliding Tiles", L"Sliding Tiles").At(0).Icon(117),
    Product(L"Games\\Puzzles\\Number Grid", L"Number Grid").At(1).Icon(117).Container(),
    Product(L"Games\\Puzzles\\Number Grid\\Easy", L"Easy").At(0).Icon(117),
    Product(L"Games\\Puzzles\\Number Grid\\Difficult", L"Difficult").At(1).Icon(117),

    Product(L"Tools", L"Tools").At(7).Icon(118).Container().List(),
    Product(L"Tools\\File Manager", L"File Manager").At(0).Icon(119),
    Product(L"Tools\\Calculator", L"Calculator").At(1).Icon(120),
    Product(L"Tools\\Search", L"Search").At(2).Icon(121),
    Product(L"Tools\\Alarm Clock", L"Alarm Clock").At(3).Icon(139),
    Product(L"Tools\\World Clock", L"World Clock").At(4).Icon(139),
    Product(L"Tools\\Weather", L"Weather").At(5).Icon(138),
    Product(L"Tools\\System", L"System").At(6).Icon(118),
    Product(L"Tools\\System\\Task Manager", L"Task Manager").At(0).Icon(118),
    Product(L"Tools\\System\\Battery Monitor", L"Battery Monitor").At(1).Icon(136),
    Product(L"Tools\\System\\Command Prompt", L"Command Prompt").At(2).Icon(122).Hidden(),

    Product(L"Connect", L"Connect").At(8).Icon(123).Container().Grid(),
    Product(L"Connect\\Phone", L"Phone").At(0).Icon(125),
    Product(L"Connect\\Web Browser", L"Web Browser").At(1).Icon(124),
    Product(L"Connect\\Chat", L"Chat").At(2).Icon(125),
    Product(L"Connect\\Wireless", L"Wireless").At(3).Icon(126),
    Product(L"Connect\\Infrared", L"Infrared").At(4).Icon(126).Hidden(),
    Product(L"Connect\\Modem", L"Modem").At(5).Icon(127).Hidden(),

    Product(L"Help", L"Help").At(9).Icon(137),

    Product(L"Settings", L"Settings").At(10).Icon(129).List(),
    Product(L"Settings\\Personal", L"Personal").At(0).Icon(130),
    Product(L"Settings\\Personal\\Buttons", L"Buttons").At(0).Icon(130),
    Product(L"Settings\\Personal\\Input", L"Input").At(1).Icon(132),
    Product(L"Settings\\Personal\\Lock", L"Lock").At(2).Icon(135),
    Product(L"Settings\\Personal\\Owner Information", L"Owner Information").At(3).Icon(102),
    Product(L"Settings\\Personal\\Sounds", L"Sounds").At(4).Icon(112),
    Product(L"Settings\\Personal\\Wallpaper", L"Wallpaper").At(5).Icon(133),
    Product(L"Settings\\System", L"System").At(1).Icon(118),
    Product(L"Settings\\System\\About", L"About").At(0).Icon(137),
    Product(L"Settings\\System\\Backlight", L"Backlight").At(1).Icon(133),
    Product(L"Settings\\System\\Date and Time", L"Date and Time").At(2).Icon(139),
    Product(L"Settings\\System\\Memory", L"Memory").At(3).Icon(118),
    Product(L"Settings\\System\\Power", L"Power").At(4).Icon(136),
    Product(L"Settings\\System\\Regional Settings", L"Regional Settings").At(5).Icon(131),
    Product(L"Settings\\System\\Accessibility", L"Accessibility").At(6).Icon(134),
    Product(L"Settings\\Connections", L"Connections").At(2).Icon(127),
    Product(L"Settings\\Connections\\Network Cards", L"Network Cards").At(0).Icon(127),
    Product(L"Settings\\Connections\\Wireless Manager", L"Wireless Manager").At(1).Icon(126),
    Product(L"Settings\\Connections\\Receive Data", L"Receive Data").At(2).Icon(126),

    // What the shared component brings: Contacts and Calendar again, the rest only here.
    Shared(L"Contacts", L"Contacts").At(0),
    Shared(L"Calendar", L"Calendar").At(1),
    Shared(L"Accessories", L"Accessories").Icon(140).Container(),
    Shared(L"Accessories\\Stopwatch", L"Stopwatch").At(0).Icon(139),
    Shared(L"Accessories\\Unit Converter", L"Unit Converter").At(1).Icon(120),
    Shared(L"Accessories\\Ruler", L"Ruler").Icon(120),
    Shared(L"Task Switcher", L"Task Switcher").At(5).Icon(119),
    Shared(L"Office\\Dictionary", L"Dictionary").At(5).Icon(131),
    Shared(L"Office\\Notes", L"Notes").At(0),
    Shared(L"Games\\Arcade", L"Arcade").Icon(117).Container().Grid(),
    Shared(L"Games\\Arcade\\Brick Wall", L"Brick Wall").At(0).Icon(117),
    Shared(L"Games\\Arcade\\Space Race", L"Space Race").At(1).Icon(117),
    Shared(L"Tools\\Screen Copy", L"Screen Copy").Icon(115),

    // What the user has made of it: a new order with "Favorites" in the middle ...
    Customised(L"Messaging").At(2),
    Customised(L"Calendar").At(3),
    Customised(L"Office").At(5),
    Customised(L"Multimedia").At(6).Flags(4),
    Customised(L"Games").At(7),
    Customised(L"Tools").At(8).Grid(),
    Customised(L"Connect").At(9),
    Customised(L"Help").At(10),
    Customised(L"Settings").At(11),
    Customised(L"Task Switcher").At(12).Hidden(),
    Customised(L"Accessories").At(13),
    // ... items switched off and on ...
    Customised(L"Multimedia\\Camera").Hidden(),
    Customised(L"Games\\Board Games\\Draughts").Hidden(),
    Customised(L"Games\\Board Games\\Four in a Row").Hidden(),
    Customised(L"Games\\Arcade\\Space Race").Hidden(),
    Customised(L"Connect\\Infrared").Shown(),
    Customised(L"Office\\Notes").At(0),
    Customised(L"Office\\Text Editor").At(1),
    Customised(L"Office\\Spreadsheet").At(2),
    Customised(L"Office\\Presentation Viewer").At(3),
    Customised(L"Office\\Dictionary").At(7),
    // ... own menus and links ...
    UserMenu(L"User 1", L"Favorites").At(4).Icon(101).Grid().Rated(L"User 9").Flags(6),
    UserLink(L"User 1\\User 2", L"Notes", L"\\Windows\\Start Menu\\Programs\\Notes.lnk").At(0),
    UserLink(L"User 1\\User 3", L"Music Player",
             L"\\Windows\\Start Menu\\Programs\\Multimedia\\Music Player.lnk")
        .At(1),
    UserMenu(L"User 1\\User 4", L"On the Road").At(2).Icon(138),
    UserLink(L"User 1\\User 4\\User 5", L"Route Planner",
             L"\\Windows\\Start Menu\\Programs\\Route Planner.lnk")
        .At(0),
    UserLink(L"Office\\User 6", L"Dictaphone",
             L"\\Windows\\Start Menu\\Programs\\Multimedia\\Voice Recorder.lnk")
        .At(8)
        .Icon(128),
    UserMenu(L"Games\\Card Games\\User 7", L"With Friends").At(2).Icon(125),
    UserLink(L"Games\\Card Games\\User 7\\User 8", L"Rummy",
             L"\\Windows\\Start Menu\\Programs\\Games\\Rummy.lnk")
        .At(0)
        .Icon(117),
    // ... and leftovers of programs that are gone.
    Customised(L"Organizer").At(4).Hidden(),
    Customised(L"Office\\Fax").Hidden(),
    Customised(L"Tools\\System\\Memory Card Doctor").At(3),
};

} // namespace

Table<MenuKey> MenuKeys()
{
    return {kKeys, sizeof(kKeys) / sizeof(kKeys[0])};
}

} // namespace sample
