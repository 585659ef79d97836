#include "tools/citydb/Terminal.h"

#include "platform/Win.h"

#include <io.h>

namespace citydb
{

namespace
{

HANDLE ConsoleOf(int file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(file));
}

} // namespace

bool IsTerminal(int file)
{
    if (file < 0 || !_isatty(file))
        return false;
    DWORD mode = 0;
    // Older consoles print the escapes that clear a line instead of obeying them: no bar there.
    return GetConsoleMode(ConsoleOf(file), &mode) &&
           SetConsoleMode(ConsoleOf(file), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

size_t TerminalColumns(int file)
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (!GetConsoleScreenBufferInfo(ConsoleOf(file), &info) || info.dwSize.X <= 0)
        return kUsualColumns;
    return static_cast<size_t>(info.dwSize.X);
}

void WriteTerminal(int file, const std::string& text)
{
    DWORD written = 0;
    WriteFile(ConsoleOf(file), text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

} // namespace citydb
