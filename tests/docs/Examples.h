// The examples of the documents, as tests/docs/extract.sh took them out: their files, and their
// programs at work.
#pragma once

#include "platform/Handles.h"
#include "tests/support/RegistrySandbox.h"

#include <string>
#include <vector>

// The text of an extracted file: L"menu-layers.reg". Fails the running test when there is none.
std::string ExampleText(const std::wstring& file);
// What the document says that an example of this name prints or shows.
std::string OutputOf(const std::wstring& name);
// The names of all examples in a language: L"reg".
std::vector<std::wstring> ExamplesIn(const std::wstring& language);

// Puts the keys and values of a .reg example into a sandbox of HKEY_LOCAL_MACHINE, by means of the
// system's own importer.
void ImportExample(const std::wstring& name, const CRegistrySandbox& registry);

// An example's program, built from the document's text, with a test's registry for the machine's.
// It is ended with the object if it still runs.
class CExampleProgram
{
public:
    // `user` is the key below the real HKEY_CURRENT_USER that stands in for it; empty for none.
    CExampleProgram(const std::wstring& name, const std::wstring& arguments,
                    const CRegistrySandbox& machine, const std::wstring& user = L"");
    ~CExampleProgram();
    CExampleProgram(const CExampleProgram&) = delete;
    CExampleProgram& operator=(const CExampleProgram&) = delete;

    // Waits until the dialog with that title takes input; null and a failed test otherwise.
    HWND WaitForDialog(const std::wstring& title) const;
    // Waits for the program's end and checks its exit code; returns what it printed.
    std::string WaitForEnd(DWORD exitCode = 0) const;
    // The thread that calls the exports.
    DWORD ThreadId() const { return m_threadId; }

private:
    std::wstring m_outputFile;
    UniqueKernelHandle m_process;
    DWORD m_threadId = 0;
};
