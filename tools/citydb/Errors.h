// What ends a command of citydb: its text is printed and its code becomes the exit code.
#pragma once

#include <stdexcept>
#include <string>

namespace citydb
{

// Bad input or a failed read or write; exit code 1.
class CInputError : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// Options that can't be obeyed; exit code 2.
class CUsageError : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

} // namespace citydb
