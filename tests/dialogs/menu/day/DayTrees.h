// What the menu editor shows before and after the editing day, as CTreeDriver::Dump puts it. Used
// by the tests of the day.
#pragma once

#include <set>
#include <string>

extern const wchar_t* const kMorningTree;
extern const wchar_t* const kEveningTree;

// The nodes of a dumped tree by their paths of labels, such as "Office/Notes"; "" is the root.
std::set<std::wstring> NodesIn(const std::wstring& dump);
