#include "device/Seed.h"

#include "platform/Win.h"

#include <vector>

#include "device/Keys.h"
#include "device/SampleFiles.h"
#include "device/SampleMenu.h"
#include "device/SamplePlugins.h"
#include "device/SampleRatings.h"
#include "device/Shortcut.h"
#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"
#include "platform/Bytes.h"
#include "platform/Handles.h"

namespace seed
{
namespace
{

// Rises whenever the sample data changes, so that an older device is seeded anew.
constexpr DWORD kSampleVersion = 3;
constexpr const wchar_t* kVersionName = L"SampleData";

const wchar_t* RootOf(sample::Layer layer)
{
    switch (layer)
    {
    case sample::Layer::Product:
        return kMenuRootPath;
    case sample::Layer::Shared:
        return kSharedRootPath;
    default:
        return kCustomizeRootPath;
    }
}

void SetNumber(CVORegistry& key, const wchar_t* name, int64_t value)
{
    if (value != sample::MenuKey::kNone)
        key.SetDWORD(name, static_cast<DWORD>(value));
}

void SetText(CVORegistry& key, const wchar_t* name, const wchar_t* text)
{
    if (text)
        key.SetString(name, text);
}

void WriteMenuKey(const sample::MenuKey& item)
{
    std::wstring path = RootOf(item.Where);
    if (*item.Path)
        path = path + L"\\" + item.Path;
    CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), TRUE, TRUE, 0);
    SetText(key, kTextValue, item.Text);
    SetText(key, kFileValue, item.File);
    // A link's icon comes from its target until the user chooses another.
    SetText(key, kImagePathValue, item.File);
    SetText(key, kDrawTypeValue, item.DrawType);
    SetText(key, kRatingValue, item.Rating);
    SetNumber(key, kIndexValue, item.Index);
    SetNumber(key, kInactiveValue, item.Inactive);
    SetNumber(key, kUserValue, item.User);
    SetNumber(key, kAddValue, item.Add);
    SetNumber(key, kImageValue, item.Image);
    SetNumber(key, kRtFlagsValue, item.RtFlags);
}

std::vector<uint8_t> Words(const std::vector<uint16_t>& words)
{
    std::vector<uint8_t> bytes(words.size() * 2);
    for (size_t i = 0; i < words.size(); ++i)
        bytes::PutU16LE(&bytes[i * 2], words[i]);
    return bytes;
}

void SetWords(CVORegistry& key, const wchar_t* name, const std::vector<uint16_t>& words)
{
    const std::vector<uint8_t> bytes = Words(words);
    key.SetBinary(name, bytes.data(), static_cast<DWORD>(bytes.size()));
}

void WriteRatingList(const sample::RatingList& list)
{
    const std::wstring path = std::wstring(kRatingsRootPath) + L"\\" + list.Name;
    CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), TRUE, TRUE, 0);
    std::vector<uint16_t> index;
    for (const sample::RatingEntry& entry : list.Entries)
    {
        index.push_back(entry.Number);
        index.push_back(entry.Weight);
        key.SetString(std::to_wstring(entry.Number).c_str(), entry.Name);
    }
    SetWords(key, L"Index", index);
    key.SetDWORD(L"Timestamp", list.Timestamp);
    if (list.Layout.Count)
        SetWords(key, L"Layout", {list.Layout.begin(), list.Layout.end()});
}

void WritePlugin(const sample::PluginKey& plugin)
{
    const std::wstring path = std::wstring(keys::kPlugins) + L"\\" + plugin.Name;
    CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), TRUE, TRUE, 0);
    SetText(key, L"Text", plugin.Text);
    SetText(key, L"CheckHKLM", plugin.MachineCheck);
    SetText(key, L"CheckHKCU", plugin.UserCheck);
    SetNumber(key, L"Kind", plugin.Kind);
    SetNumber(key, L"BuildIn", plugin.BuiltIn);
    SetNumber(key, L"Inactive", plugin.Inactive);
}

void WritePlugins()
{
    for (const sample::PluginKey& plugin : sample::PluginKeys())
        WritePlugin(plugin);
    const CVORegistry machine(HKEY_LOCAL_MACHINE, sample::kInstalledForMachine, TRUE, TRUE, 0);
    const CVORegistry user(HKEY_CURRENT_USER, sample::kInstalledForUser, TRUE, TRUE, 0);
}

// Deletes the last component of `path` with all that is below it.
void EraseTree(HKEY root, const std::wstring& path)
{
    const size_t cut = path.rfind(L'\\');
    CVORegistry parent(root, path.substr(0, cut).c_str(), FALSE, FALSE, 0);
    if (parent.Key)
        parent.DeleteKeyTree(path.substr(cut + 1).c_str());
}

// Creates the folders that lead to `path`.
void CreateFoldersOf(const std::wstring& path)
{
    for (size_t slash = path.find(L'\\', 1); slash != std::wstring::npos;
         slash = path.find(L'\\', slash + 1))
        CreateDirectoryW(path.substr(0, slash).c_str(), nullptr);
}

bool WriteAnsiFile(const std::wstring& path, const std::wstring& text)
{
    CreateFoldersOf(path);
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file)
        return false;
    std::string bytes(text.size() * 2 + 1, '\0');
    const int length =
        WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    DWORD written = 0;
    return WriteFile(file.get(), bytes.data(), static_cast<DWORD>(length), &written, nullptr) &&
           written == static_cast<DWORD>(length);
}

} // namespace

bool IsSeeded()
{
    const CVORegistry key(HKEY_LOCAL_MACHINE, keys::kDevice, FALSE, FALSE, 0);
    DWORD version = 0;
    return key.GetDWORD(kVersionName, version) && version == kSampleVersion;
}

void WriteRegistry(const std::wstring& installFolder)
{
    for (const sample::MenuKey& item : sample::MenuKeys())
        WriteMenuKey(item);
    for (const sample::RatingList& list : sample::RatingLists())
        WriteRatingList(list);
    WritePlugins();
    CVORegistry customised(HKEY_LOCAL_MACHINE, kCustomizeRootPath, TRUE, TRUE, 0);
    customised.SetDWORD(kLastKeyValue, sample::kLastKey);
    CVORegistry product(HKEY_LOCAL_MACHINE, keys::kProduct, TRUE, TRUE, 0);
    product.SetString(L"InstallDir", installFolder.c_str());
    CVORegistry device(HKEY_LOCAL_MACHINE, keys::kDevice, TRUE, TRUE, 0);
    device.SetDWORD(kVersionName, kSampleVersion);
}

void EraseRegistry()
{
    EraseTree(HKEY_LOCAL_MACHINE, keys::kProduct);
    EraseTree(HKEY_LOCAL_MACHINE, keys::kSharedComponent);
    EraseTree(HKEY_CURRENT_USER, sample::kInstalledForUser);
}

bool WriteStartMenu(const std::wstring& startMenuFolder, const std::wstring& iconFile)
{
    bool complete = true;
    for (const sample::StartMenuFile& file : sample::StartMenuFiles())
    {
        const std::wstring text = shortcut::Format({file.Target, iconFile, file.Icon});
        if (!WriteAnsiFile(startMenuFolder + L"\\" + file.Path, text))
            complete = false;
    }
    return complete;
}

} // namespace seed
