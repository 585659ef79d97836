// Finds and reads the pages of help on the device.
#pragma once

#include <string>

#include "device/help/Book.h"

namespace help
{

struct FoundPage
{
    // Empty when there is a problem.
    std::wstring Path;
    // A sentence for the user; empty when the page was found.
    std::wstring Problem;
};

// The page of that name: as given when it is a full path, otherwise beside the program, otherwise
// in the shell's installation folder. Names that lead anywhere else are refused, as is everything
// that is no .htm or .html file.
FoundPage FindPage(const std::wstring& name);

// The same for a link on the page `from`: what isn't a full path lies in that page's folder.
FoundPage FindLinkedPage(const std::wstring& from, const std::wstring& name);

struct ReadPage
{
    Book Contents;
    // A sentence for the user; empty when the page was read.
    std::wstring Problem;
};

// Reads and parses a page of at most 4 MB. One that has too many parts ends with a note that says
// so.
ReadPage ReadPageFile(const std::wstring& path);

// The viewer's own path.
std::wstring ProgramPath();

} // namespace help
