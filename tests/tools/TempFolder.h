// A folder of its own for one test, removed behind it.
#pragma once

#include <filesystem>
#include <string>

class CTempFolder
{
public:
    CTempFolder();
    ~CTempFolder();
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    // The path of a file in it, which need not exist.
    std::string File(const std::string& name) const { return (m_path / name).string(); }
    // Makes a file and returns its path.
    std::string Write(const std::string& name, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

// A whole file; empty when there is none.
std::string Slurp(const std::string& path);
