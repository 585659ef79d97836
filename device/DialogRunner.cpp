#include "device/DialogRunner.h"

#include "device/Dialogs.h"
#include "device/Failure.h"
#include "device/RegistryReport.h"
#include "device/RegistrySnapshot.h"
#include "platform/Handles.h"

namespace
{

std::string ToUtf8(const std::wstring& text)
{
    std::string bytes(text.size() * 3 + 1, '\0');
    bytes.resize(static_cast<size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

void WriteReport(const std::wstring& file, DialogOutcome outcome, const std::wstring& text)
{
    const UniqueFile handle(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!handle)
        return;
    const std::string bytes = ToUtf8(std::to_wstring(static_cast<int>(outcome)) + L"\n" + text);
    DWORD written = 0;
    WriteFile(handle.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

std::wstring ChangesInWords(const RegistrySnapshot& before)
{
    const std::vector<std::wstring> lines = report::DescribeChanges(before, TakeSnapshot());
    if (lines.empty())
        return L"Nothing changed in the registry.\n";
    std::wstring text = L"Changes in the registry:\n";
    for (const std::wstring& line : lines)
        text += L"  " + line + L"\n";
    return text;
}

} // namespace

DialogOutcome RunAndReport(const DialogEntry* entry, HWND owner, const std::wstring& file)
{
    if (!entry)
    {
        WriteReport(file, DialogOutcome::NotThere, L"There is no dialog of that name.\n");
        return DialogOutcome::NotThere;
    }
    const RegistrySnapshot before = TakeSnapshot();
    DialogOutcome outcome = DialogOutcome::Ended;
    std::wstring text;
    try
    {
        const DialogResult result = entry->Run(owner);
        text = entry->Name;
        text += result.Confirmed ? L" returned TRUE: confirmed with Done.\n"
                                 : L" returned FALSE: not confirmed.\n";
        text += result.Words;
    }
    catch (...)
    {
        outcome = DialogOutcome::Failed;
        text = failure::DescribeCurrent() + L"\n";
    }
    WriteReport(file, outcome, text + ChangesInWords(before));
    return outcome;
}
