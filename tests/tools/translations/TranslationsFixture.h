// Sources, PO files and the commands on them, in a folder of the test's own.
#pragma once

#include "tests/tools/Shell.h"
#include "tests/tools/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Calls the program's code with these arguments.
ToolRun RunTranslations(const std::vector<std::string>& arguments);

// Runs the program itself; Out holds what it printed on both ways.
ToolRun RunTranslationsProgram(const std::string& arguments);

class CTranslationsTest : public testing::Test
{
protected:
    // A PO file with a header and these entries behind it, whose first is on line 8.
    std::string Po(const std::string& name, const std::string& entries,
                   const std::string& encoding = "UTF-16LE") const;
    // A project whose resources, and whose file below device/ of that name, hold these texts.
    void WriteProject(const std::string& resources, const std::string& file = "",
                      const std::string& code = "") const;
    // The template that is extracted from the project.
    std::string Extracted() const;
    // The file for the device made of a PO file with these entries.
    std::string Built(const std::string& entries, const std::string& encoding = "UTF-16LE") const;
    // What check says about the entries against a template with others.
    ToolRun Check(const std::string& entries, const std::string& pattern) const;

    CTempFolder Folder;
};

// One entry.
std::string PoEntry(const std::string& english, const std::string& translation);

// ASCII as UTF-16 in the file's byte order.
std::string Utf16(const std::string& text);
