// Bitmap files for the wizard, and the two forms of the archive that they come in.
#pragma once

#include "platform/Win.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/ZipWriter.h"

#include <string>
#include <utility>
#include <vector>

// A bitmap file of 24 bits, all in one colour.
inline std::string BitmapFileOf(int width, int height, COLORREF colour)
{
    const auto stride = static_cast<size_t>((width * 3 + 3) / 4 * 4);
    std::string file(54 + stride * static_cast<size_t>(height), '\0');
    const auto put = [&](size_t offset, uint32_t value)
    {
        for (size_t i = 0; i < 4; ++i)
            file[offset + i] = static_cast<char>(value >> (8 * i));
    };
    file[0] = 'B';
    file[1] = 'M';
    put(10, 54);
    put(14, 40);
    put(18, static_cast<uint32_t>(width));
    put(22, static_cast<uint32_t>(height));
    file[26] = 1;
    file[28] = 24;
    for (size_t y = 0; y < static_cast<size_t>(height); ++y)
        for (size_t x = 0; x < static_cast<size_t>(width); ++x)
        {
            char* const pixel = &file[54 + y * stride + x * 3];
            pixel[0] = static_cast<char>(GetBValue(colour));
            pixel[1] = static_cast<char>(GetGValue(colour));
            pixel[2] = static_cast<char>(GetRValue(colour));
        }
    return file;
}

// Names and contents of an archive's members.
using WizardMembers = std::vector<std::pair<std::string, std::string>>;

// Writes the archive as a zip file into the installation folder.
inline void WriteWizardArchive(const CTempFolder& folder, const WizardMembers& members)
{
    std::vector<zip::Entry> entries;
    for (const auto& [name, data] : members)
        entries.push_back(zip::Deflated(name, data));
    const zip::Bytes archive = zip::Archive(entries);
    folder.Write(L"qa_wizard.dat", std::string(archive.begin(), archive.end()));
}

// The archive as a folder of that name; deleted with the object, which must go before `parent`.
class CWizardFolder
{
public:
    CWizardFolder(const CTempFolder& parent, const WizardMembers& members)
        : m_path(parent.Path() + L"\\qa_wizard.dat")
    {
        CreateDirectoryW(m_path.c_str(), nullptr);
        for (const auto& [name, data] : members)
        {
            const std::wstring file = L"qa_wizard.dat\\" + std::wstring(name.begin(), name.end());
            m_files.push_back(parent.Write(file.c_str(), data));
        }
    }
    ~CWizardFolder()
    {
        for (const std::wstring& file : m_files)
            DeleteFileW(file.c_str());
        RemoveDirectoryW(m_path.c_str());
    }
    CWizardFolder(const CWizardFolder&) = delete;
    CWizardFolder& operator=(const CWizardFolder&) = delete;

private:
    std::wstring m_path;
    std::vector<std::wstring> m_files;
};
