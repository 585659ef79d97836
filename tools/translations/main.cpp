// translations: collects the texts to translate, and makes and checks translation files.
#include "tools/translations/Commands.h"

#include <iostream>

int main(int argc, char** argv)
{
    return translations::RunProgram(argc, argv, std::cout, std::cerr);
}
