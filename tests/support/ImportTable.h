// Reads the import and export tables of a loaded module.
#pragma once

#include "platform/Win.h"

#include <string>
#include <vector>

// One function that a module imports by name.
struct ImportedFunction
{
    std::string dll;
    std::string name;
    // Where the module keeps the function's address.
    void** slot;
};

// All functions that `module` imports by name, in the order of its table.
std::vector<ImportedFunction> ImportsOf(HMODULE module);

// The names that `module` exports, in the order of its table, which is alphabetical.
std::vector<std::string> ExportsOf(HMODULE module);
