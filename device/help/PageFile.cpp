#include "device/help/PageFile.h"

#include <vector>

#include "device/Keys.h"
#include "device/help/BookText.h"
#include "device/help/PageName.h"
#include "frame/VORegistry.h"
#include "platform/Handles.h"

namespace help
{
namespace
{

constexpr DWORD kLargestPage = 4 * 1024 * 1024;

std::wstring FolderOf(const std::wstring& path)
{
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

std::wstring InstallFolder()
{
    CVORegistry key(HKEY_LOCAL_MACHINE, keys::kProduct, FALSE, FALSE, 0);
    const std::wstring folder = key.GetString(L"InstallDir", nullptr);
    return folder.empty() || folder.back() == L'\\' ? folder : folder + L'\\';
}

bool IsFile(const std::wstring& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::wstring WithBackslashes(std::wstring name)
{
    for (wchar_t& unit : name)
        if (unit == L'/')
            unit = L'\\';
    return name;
}

// Why a name is refused; empty for a good one.
std::wstring Refusal(PageName judgement, const std::wstring& name)
{
    switch (judgement)
    {
    case PageName::ForeignPlace:
        return L"'" + name + L"' is not on this device. Help shows only pages of the device.";
    case PageName::LeavesFolder:
        return L"'" + name + L"' leads out of the help folder, so it is not opened.";
    case PageName::NoPage:
        return L"'" + name + L"' is no help page. Help pages end in .htm or .html.";
    case PageName::Malformed:
        return L"The name of the help page is not a file's name.";
    default:
        return {};
    }
}

FoundPage Find(const std::wstring& given, const std::vector<std::wstring>& folders)
{
    const PageName judgement = JudgePageName(given);
    const std::wstring problem = Refusal(judgement, given);
    if (!problem.empty())
        return {{}, problem};
    const std::wstring name = WithBackslashes(given);
    if (judgement == PageName::Absolute && IsFile(name))
        return {name, {}};
    if (judgement == PageName::Relative)
        for (const std::wstring& folder : folders)
            if (!folder.empty() && IsFile(folder + name))
                return {folder + name, {}};
    return {{}, L"The help page '" + given + L"' was not found."};
}

// A last paragraph in bold.
void AddNote(Book& book, const wchar_t* text)
{
    Block note;
    note.Runs.push_back({text, true, -1});
    book.Blocks.push_back(std::move(note));
}

ReadPage Unreadable(const std::wstring& path, const wchar_t* why)
{
    return {{}, L"The help page '" + path + L"' " + why};
}

} // namespace

std::wstring ProgramPath()
{
    std::vector<wchar_t> path(0x8000);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::wstring(path.data(), length);
}

FoundPage FindPage(const std::wstring& name)
{
    return Find(name, {FolderOf(ProgramPath()), InstallFolder()});
}

FoundPage FindLinkedPage(const std::wstring& from, const std::wstring& name)
{
    return Find(name, {FolderOf(from)});
}

ReadPage ReadPageFile(const std::wstring& path)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    // A device such as "con.htm" would wait for somebody to type the page.
    if (!file || GetFileType(file.get()) != FILE_TYPE_DISK)
        return Unreadable(path, L"can't be opened.");
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > kLargestPage)
        return Unreadable(path, L"is too large to be shown.");
    std::vector<uint8_t> bytes(static_cast<size_t>(size.QuadPart));
    DWORD length = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length, nullptr))
        return Unreadable(path, L"can't be read.");
    ReadPage page = {ParseBook(DecodePage(bytes.data(), length)), {}};
    if (page.Contents.Cut)
        AddNote(page.Contents, L"This page is too long to be shown whole.");
    return page;
}

} // namespace help
