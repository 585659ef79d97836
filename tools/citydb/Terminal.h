// What the progress bar needs of a terminal, which each system has in its own way.
#pragma once

#include <cstddef>
#include <string>

namespace citydb
{

// What is assumed where a terminal doesn't tell its width.
constexpr size_t kUsualColumns = 80;

// True when the open descriptor is a terminal that can rewrite its line.
bool IsTerminal(int file);

size_t TerminalColumns(int file);

// A bar that can't be drawn is no reason to stop: errors are ignored.
void WriteTerminal(int file, const std::string& text);

} // namespace citydb
