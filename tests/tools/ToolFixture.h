// A folder, a source in it and the commands on the database that comes of it.
#pragma once

#include "tests/tools/Places.h"
#include "tests/tools/TempFolder.h"
#include "tests/tools/Tool.h"

#include <gtest/gtest.h>

class CToolTest : public testing::Test
{
protected:
    // Runs `build` over a text, a table unless it says otherwise, and further options; makes
    // Database() as a plain image.
    ToolRun Build(const std::string& text, std::vector<std::string> options = {})
    {
        std::vector<std::string> arguments = {
            "build", Folder.Write("source.tsv", text), "--out", Database(), "--form", "image"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return RunTool(arguments);
    }

    std::string Database() const { return Folder.File("Database.dat"); }

    // What `list` prints.
    std::string List(const std::string& text = {}) const
    {
        return RunTool({"list", Database(), text}).Out;
    }

    // The printed lines without the identifiers.
    std::string Names(const std::string& text = {}) const
    {
        std::string names;
        std::string lines = List(text);
        for (size_t end = lines.find('\n'); end != std::string::npos; end = lines.find('\n'))
        {
            names += lines.substr(lines.find('\t') + 1, end - lines.find('\t'));
            lines.erase(0, end + 1);
        }
        return names;
    }

    // The identifier of the first city found.
    std::string IdentifierOf(const std::string& text) const
    {
        const std::string lines = List(text);
        return lines.substr(0, lines.find('\t'));
    }

    CTempFolder Folder;
};
