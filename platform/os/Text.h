// Comparing texts without regard to case, as the handheld does: code unit by code unit, each
// folded to lower case, in no language's order.
#pragma once

#include "platform/Char16.h"

namespace os
{

// The lower-case form of one code unit, as the system's CharLowerBuffW gives it.
wchar_t FoldCase(wchar_t unit);

// The lower-case forms of all 65,536 code units, for loops that can't afford a call per unit.
const wchar_t* FoldTable();

// The text with every code unit folded.
std::wstring FoldCase(std::wstring_view text);

// Below 0, 0 or above 0, as `left` stands before, equal to or behind `right`, ignoring case.
int CompareNoCase(std::wstring_view left, std::wstring_view right);

inline bool EqualNoCase(std::wstring_view left, std::wstring_view right)
{
    return left.size() == right.size() && CompareNoCase(left, right) == 0;
}

// True when `text` begins with the whole of `prefix`, ignoring case.
inline bool BeginsNoCase(std::wstring_view text, std::wstring_view prefix)
{
    return text.size() >= prefix.size() && EqualNoCase(text.substr(0, prefix.size()), prefix);
}

} // namespace os
