// What the help viewer is asked for on its command line. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

namespace help
{

struct HelpRequest
{
    // The page's file as given; the book's own when none was.
    String16 File;
    // Where to open it; the table of contents when nothing was given.
    String16 Topic;
    // Show the page in the viewer's own window, whatever browser there is.
    bool OwnWindow = false;
    // Take a picture of that window into this file and leave; empty otherwise.
    String16 PictureFile;
};

// Reads "[PROGRAM] [--window] [--picture FILE] [PAGE.htm][#TOPIC]". The program's name may be
// missing: the dialogs start the viewer with the page as the whole of its command line, and then a
// topic may hold blanks. `program` is the viewer's own path. Program, picture and page may stand in
// quotation marks. A word with neither "#" nor a file's marks (".", "\", "/", ":") is a topic.
HelpRequest ReadHelpRequest(StringView16 commandLine, StringView16 program);

// The same for the target of a link or the text that another viewer sends: "[PAGE.htm][#TOPIC]".
HelpRequest ReadTarget(StringView16 target);

} // namespace help
