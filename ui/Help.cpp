#include "ui/Help.h"

#include "platform/os/Process.h"

namespace
{

constexpr const wchar_t* kViewer = L"PegHelp.exe";
constexpr const wchar_t* kBook = L"TavLumenar.htm";
constexpr const wchar_t* kDefaultTopic = L"Main_Contents";
// The viewer takes no longer command line.
constexpr size_t kLongestCommandLine = 259;

} // namespace

std::wstring HelpCommandLine(const std::wstring& topic)
{
    const std::wstring line = std::wstring(kBook) + L"#" + (topic.empty() ? kDefaultTopic : topic);
    return line.substr(0, kLongestCommandLine);
}

void LaunchHelp(const std::wstring& topic)
{
    os::StartProgram(kViewer, HelpCommandLine(topic));
}
