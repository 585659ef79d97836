// citydb on Windows: hands the command line over in UTF-8, in which the tool keeps all its texts.
#include "tools/citydb/Commands.h"
#include "tools/citydb/Text.h"

#include "platform/Win.h"

#include <iostream>
#include <vector>

#include <stdio.h>

int wmain(int argc, wchar_t** argv)
{
    SetConsoleOutputCP(CP_UTF8);
    std::vector<std::string> words;
    words.reserve(static_cast<size_t>(argc));
    for (int i = 0; i < argc; ++i)
        words.push_back(citydb::ToUtf8(argv[i]));
    std::vector<const char*> arguments;
    arguments.reserve(words.size());
    for (const std::string& word : words)
        arguments.push_back(word.c_str());
    citydb::Console console{std::cout, std::cerr, _fileno(stderr)};
    return citydb::RunProgram(argc, arguments.data(), console);
}
