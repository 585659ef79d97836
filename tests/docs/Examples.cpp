#include "tests/docs/Examples.h"

#include "tests/support/DialogRun.h"
#include "tests/support/Wait.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

constexpr DWORD kPatience = 20000;
constexpr UINT kKilled = 99;

std::string ReadFileText(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    std::string text{std::istreambuf_iterator<char>(file), {}};
    // What a program prints ends its lines as the system does.
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return text;
}

std::filesystem::path ExampleFile(const std::wstring& file)
{
    return std::filesystem::path(TAV_EXAMPLES) / file;
}

// The documents hold ASCII where a file's bytes matter.
std::wstring Widen(const std::string& text)
{
    return std::wstring(text.begin(), text.end());
}

std::wstring UniquePath(const wchar_t* extension)
{
    static int counter = 0;
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    return folder + (L"tav-example-" + std::to_wstring(GetCurrentProcessId())) + L"-" +
           std::to_wstring(++counter) + extension;
}

void ReplaceAll(std::wstring& text, const std::wstring& what, const std::wstring& with)
{
    for (size_t at = 0; (at = text.find(what, at)) != std::wstring::npos; at += with.size())
        text.replace(at, what.size(), with);
}

void WriteUtf16(const std::wstring& path, const std::wstring& text)
{
    std::ofstream file(std::filesystem::path(path), std::ios::binary);
    file << "\xFF\xFE";
    file.write(reinterpret_cast<const char*>(text.data()),
               static_cast<std::streamsize>(text.size() * sizeof(wchar_t)));
}

UniqueFile CreateInheritedFile(const std::wstring& path)
{
    SECURITY_ATTRIBUTES inherited = {sizeof(inherited), nullptr, TRUE};
    return UniqueFile(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  &inherited, CREATE_ALWAYS, 0, nullptr));
}

// Starts a program that prints into a file. Fails the running test when that can't be done.
PROCESS_INFORMATION Start(std::wstring commandLine, const std::wstring& outputFile)
{
    const UniqueFile output = CreateInheritedFile(outputFile);
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.get();
    startup.hStdError = output.get();
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr,
                               nullptr, &startup, &process))
        << GetLastError();
    if (process.hThread)
        CloseHandle(process.hThread);
    return process;
}

std::wstring FolderOfThisProgram()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return std::filesystem::path(program).parent_path().wstring();
}

} // namespace

std::string ExampleText(const std::wstring& file)
{
    return ReadFileText(ExampleFile(file));
}

std::string OutputOf(const std::wstring& name)
{
    return ExampleText(name + L".out");
}

std::vector<std::wstring> ExamplesIn(const std::wstring& language)
{
    std::vector<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(TAV_EXAMPLES))
        if (entry.path().extension() == L"." + language)
            names.push_back(entry.path().stem().wstring());
    std::sort(names.begin(), names.end());
    return names;
}

void ImportExample(const std::wstring& name, const CRegistrySandbox& registry)
{
    std::wstring text = Widen(ExampleText(name + L".reg"));
    ReplaceAll(text, L"[HKEY_LOCAL_MACHINE\\",
               L"[HKEY_CURRENT_USER\\" + registry.BackingPath() + L"\\");
    const std::wstring file = UniquePath(L".reg");
    const std::wstring outputFile = UniquePath(L".txt");
    WriteUtf16(file, text);
    const PROCESS_INFORMATION process = Start(L"reg.exe import \"" + file + L"\"", outputFile);
    const UniqueKernelHandle handle(process.hProcess);
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(handle.get(), kPatience));
    DWORD code = 1;
    GetExitCodeProcess(handle.get(), &code);
    EXPECT_EQ(0u, code) << ReadFileText(outputFile);
    DeleteFileW(file.c_str());
    DeleteFileW(outputFile.c_str());
}

CExampleProgram::CExampleProgram(const std::wstring& name, const std::wstring& arguments,
                                 const CRegistrySandbox& machine, const std::wstring& user)
    : m_outputFile(UniquePath(L".txt"))
{
    SetEnvironmentVariableW(L"TAV_EXAMPLE_MACHINE", machine.BackingPath().c_str());
    SetEnvironmentVariableW(L"TAV_EXAMPLE_USER", user.empty() ? nullptr : user.c_str());
    const PROCESS_INFORMATION process = Start(
        L"\"" + FolderOfThisProgram() + L"\\doc_" + name + L".exe\" " + arguments, m_outputFile);
    m_process.reset(process.hProcess);
    m_threadId = process.dwThreadId;
}

CExampleProgram::~CExampleProgram()
{
    if (WaitForSingleObject(m_process.get(), 0) != WAIT_OBJECT_0)
    {
        TerminateProcess(m_process.get(), kKilled);
        WaitForSingleObject(m_process.get(), kPatience);
    }
    DeleteFileW(m_outputFile.c_str());
}

HWND CExampleProgram::WaitForDialog(const std::wstring& title) const
{
    HWND dialog = nullptr;
    const auto isOpen = [&]
    {
        dialog = OpenDialogOf(m_threadId);
        return dialog && TextOf(dialog) == title;
    };
    const auto isOver = [&] { return WaitForSingleObject(m_process.get(), 0) == WAIT_OBJECT_0; };
    WaitUntil([&] { return isOpen() || isOver(); }, kPatience);
    EXPECT_TRUE(isOpen()) << ReadFileText(m_outputFile);
    return dialog;
}

std::string CExampleProgram::WaitForEnd(DWORD exitCode) const
{
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(m_process.get(), kPatience));
    DWORD code = STILL_ACTIVE;
    GetExitCodeProcess(m_process.get(), &code);
    const std::string output = ReadFileText(m_outputFile);
    EXPECT_EQ(exitCode, code) << output;
    return output;
}
