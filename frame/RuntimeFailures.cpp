// What the standard library's containers do when they are misused or find no memory. The runtime's
// own functions throw exceptions with texts: 45 KB of code for words that nobody reads.
#include <new>

#include "frame/TavException.h"

namespace std
{

void __throw_bad_alloc()
{
    throw bad_alloc();
}

void __throw_bad_array_new_length()
{
    throw bad_array_new_length();
}

// A text or an array that is asked to hold more than it ever could.
void __throw_length_error(const char*)
{
    ThrowBroken();
}

void __throw_logic_error(const char*)
{
    ThrowBroken();
}

void __throw_out_of_range_fmt(const char*, ...)
{
    ThrowBroken();
}

} // namespace std
