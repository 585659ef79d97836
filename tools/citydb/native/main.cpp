// citydb: builds, checks and searches city databases.
#include "tools/citydb/Commands.h"

#include <iostream>

#include <unistd.h>

int main(int argc, char** argv)
{
    citydb::Console console{std::cout, std::cerr, STDERR_FILENO};
    return citydb::RunProgram(argc, argv, console);
}
