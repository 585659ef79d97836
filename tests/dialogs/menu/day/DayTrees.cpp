#include "tests/dialogs/menu/day/DayTrees.h"

#include <sstream>
#include <vector>

// Everything that the sample device shows, in its order.
const wchar_t* const kMorningTree = LR"(  Tav Menu
  + Programs
  + Contacts
  + Messaging
  + Calendar
  + Favorites
    + Notes
    + Music Player
    + On the Road
      + Route Planner
  + Office
    + Notes
    + Text Editor
    + Spreadsheet
    + Presentation Viewer
    + Tasks
    + Document Reader
    + Templates
      + Letters
        + Business Letter
        + Private Letter
      + Invoice
      + Travel Report
    + Dictionary
    + Dictaphone
  + Multimedia
    + Music Player
    + Video Player
    + Pictures
    - Camera
    + Voice Recorder
  + Games
    + Card Games
      + Solitaire
      + Patience
      + With Friends
        + Rummy
    + Board Games
      + Chess
      - Draughts
      - Four in a Row
    + Puzzles
      + Sliding Tiles
      + Number Grid
        + Easy
        + Difficult
    + Arcade
      + Brick Wall
      - Space Race
  + Tools
    + File Manager
    + Calculator
    + Search
    + Alarm Clock
    + World Clock
    + Weather
    + System
      + Task Manager
      + Battery Monitor
      - Command Prompt
    + Screen Copy
  + Connect
    + Phone
    + Web Browser
    + Chat
    + Wireless
    + Infrared
    - Modem
  + Help
    Settings
  - Task Switcher
  + Accessories
    + Stopwatch
    + Unit Converter
    + Ruler
)";

// The same without "Favorites", with "Planning", "Chess" and "Travel", in the new order.
const wchar_t* const kEveningTree = LR"(  Tav Menu
  + Programs
  + Messaging
  + Contacts
  - Calendar
  + Office
    + Notes
    + Text Editor
    + Spreadsheet
    + Presentation Viewer
    + Tasks
    + Document Reader
    + Templates
      + Letters
        + Business Letter
        + Private Letter
      + Invoice
      + Travel Report
    + Dictionary
    + Dictaphone
    - Planning
      + Trips
      + Trip
  + Games
    + Card Games
      + Solitaire
      + Patience
      + With Friends
        + Rummy
    + Board Games
      + Chess
      - Draughts
      - Four in a Row
    + Puzzles
      + Sliding Tiles
      + Number Grid
        + Easy
        + Difficult
    + Arcade
      + Brick Wall
      - Space Race
  + Multimedia
    + Music Player
    + Video Player
    + Pictures
    - Camera
    + Voice Recorder
  + Tools
    + File Manager
    + Calculator
    + Search
    + Alarm Clock
    + World Clock
    + Weather
    + System
      + Task Manager
      + Battery Monitor
      - Command Prompt
    + Screen Copy
    + Chess
  + Connect
    + Phone
    + Web Browser
    + Chat
    + Wireless
    + Infrared
    - Modem
    Settings
  + Help
  + Task Switcher
  + Accessories
    + Stopwatch
    + Unit Converter
    + Ruler
  + Travel
)";

std::set<std::wstring> NodesIn(const std::wstring& dump)
{
    std::wistringstream lines(dump);
    std::set<std::wstring> nodes;
    std::vector<std::wstring> path;
    for (std::wstring line; std::getline(lines, line);)
    {
        // Two places for each level, then the box and a blank.
        size_t box = line.find_first_of(L"+-");
        if (box == std::wstring::npos)
            box = line.find_first_not_of(L' ') - 2;
        path.resize(box / 2);
        path.push_back(line.substr(box + 2));
        std::wstring node;
        for (size_t level = 1; level < path.size(); ++level)
            node += (level > 1 ? L"/" : L"") + path[level];
        nodes.insert(node);
    }
    return nodes;
}
