// The system's browser, for showing a page of help there.
#pragma once

#include <string>

namespace help
{

struct Browser
{
    // The program's full path; empty when there is no browser.
    std::wstring Program;
    // Its command line, with "%1" for the address, as the system keeps it.
    std::wstring Command;
};

// The program that the system opens addresses of the network with, otherwise the one for .htm
// files; nothing when neither is a browser that can show a page at a topic.
Browser FindBrowser();

// Whether a program is such a browser. Wine's own winebrowser.exe and iexplore.exe are not: the
// first spoils the address of a file that goes on with a topic, and knows nothing of what the
// machine outside the device can open; the second shows nothing without an engine that usually
// isn't installed. The system's question which program to use is none either.
bool IsBrowser(const std::wstring& program, bool isWine);

// The address of a topic on a page: "file:///C:/Help/Book.htm#Topic"; empty on failure.
std::wstring AddressOf(const std::wstring& path, const std::wstring& topic);

// The command line that opens `address`: in place of "%1", or behind the rest.
std::wstring CommandFor(const Browser& browser, const std::wstring& address);

// Opens the address; false when the browser can't be started.
bool OpenInBrowser(const Browser& browser, const std::wstring& address);

} // namespace help
