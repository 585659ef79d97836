#include "tools/citydb/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace citydb
{

bool IsTerminal(int file)
{
    return isatty(file) == 1;
}

size_t TerminalColumns(int file)
{
    winsize size{};
    if (ioctl(file, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return kUsualColumns;
    return size.ws_col;
}

void WriteTerminal(int file, const std::string& text)
{
    [[maybe_unused]] const ssize_t written = write(file, text.data(), text.size());
}

} // namespace citydb
