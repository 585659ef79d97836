// The editing day: what a user does with the sample device's menu in six sittings, and what each
// command must leave in the registry. Written out by hand from the rules of the menu, so that
// nothing of the module decides what is right. Used by both tests of the day.
#pragma once

#include "tests/dialogs/menu/day/DayEditor.h"

#include <functional>
#include <string>
#include <vector>

using Lines = std::vector<std::wstring>;

// One command of the user's.
struct DayStep
{
    std::string name;
    // How often it writes to the registry.
    int writes;
    std::function<void(CDayEditor& editor)> act;
    // The lines of the device's state that come, behind "+", and that go, behind "-".
    Lines changes = {};
    // Lines that are there only while the command is at work.
    Lines passing = {};
    // The nodes, by their path of labels, that a newly opened editor shows from now on ("+") and
    // those that it no longer shows ("-").
    Lines nodes = {};
};

// What happens between opening the editor and its end.
using Sitting = std::vector<DayStep>;

// The whole day. The links come from `startMenu`.
std::vector<Sitting> EditingDay(const std::wstring& startMenu);
