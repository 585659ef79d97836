#include "menu/Rating.h"

#include "frame/VORegistry.h"
#include "menu/GlobalMruLock.h"
#include "menu/MemoryFailure.h"
#include "menu/MenuKeys.h"
#include "menu/MenuPaths.h"
#include "platform/os/Text.h"

namespace Ratings
{
namespace
{

constexpr const wchar_t* kGlobalListName = L"GlobalMRUList";

// The values of a list's key that are not entry names.
constexpr const wchar_t* kListIndexValue = L"Index";
constexpr const wchar_t* kTimestampValue = L"Timestamp";

constexpr std::wstring_view kShortcutExtension = L".lnk";

// A usual list fits, so that it takes one call.
constexpr DWORD kUsualBinaryBytes = 4096;
// A value may grow between two calls.
constexpr int kReadAttempts = 4;

constexpr FoldFunction kFold = os::FoldCase;

std::vector<uint8_t> ReadBinary(const CVORegistry& key, const wchar_t* name)
{
    DWORD size = kUsualBinaryBytes;
    for (int attempt = 0; attempt < kReadAttempts; ++attempt)
    {
        std::vector<uint8_t> data(size);
        if (key.GetBinary(name, data.data(), &size))
        {
            data.resize(size);
            return data;
        }
        if (size <= data.size())
            break;
    }
    return {};
}

// A list without entries is a value without bytes.
void WriteBinary(CVORegistry& key, const wchar_t* name, const std::vector<uint8_t>& data)
{
    const uint8_t none = 0;
    key.SetBinary(name, data.empty() ? &none : data.data(), static_cast<DWORD>(data.size()));
}

bool IsShortcut(std::wstring_view file)
{
    return file.size() > kShortcutExtension.size() &&
           os::EqualNoCase(file.substr(file.size() - kShortcutExtension.size()),
                           kShortcutExtension);
}

std::wstring ListPath(const std::wstring& name)
{
    return ChildPath(kRatingsRootPath, name);
}

} // namespace

CRating::CRating(const std::wstring& name) : Name(name)
{
    CVORegistry key(HKEY_LOCAL_MACHINE, KeyPath().c_str(), FALSE, FALSE, 0);
    Read(key);
}

CRating::CRating(const std::wstring& name, CVORegistry& key) : Name(name)
{
    Read(key);
}

std::wstring CRating::KeyPath() const
{
    return ListPath(Name);
}

void CRating::Read(CVORegistry& key)
{
    const std::vector<uint8_t> index = ReadBinary(key, kListIndexValue);
    Entries = DecodeIndex(index.data(), index.size());
    for (CEntry& entry : Entries)
        entry.Name = key.GetString(ValueName(entry.Number).c_str(), nullptr);
}

void CRating::Pin(std::wstring_view name)
{
    Ratings::Pin(Entries, name, kFold);
}

void CRating::Unpin(std::wstring_view name)
{
    Ratings::Unpin(Entries, name, kFold);
}

void CRating::Save(bool flush)
{
    CVORegistry key(HKEY_LOCAL_MACHINE, KeyPath().c_str(), TRUE, flush, 0);
    Save(key);
}

void CRating::Save(CVORegistry& key)
{
    DWORD timestamp = 0;
    key.GetDWORD(kTimestampValue, timestamp);
    key.SetDWORD(kTimestampValue, timestamp + 1);

    Trim(Entries);
    CFreeNumbers freeNumbers(Entries);
    for (CEntry& entry : Entries)
    {
        if (entry.Number != kNoNumber)
            continue;
        const uint16_t number = freeNumbers.Next();
        if (number == kNoNumber)
            break;
        // Without its name the entry is left out of the list this time.
        if (key.SetString(ValueName(number).c_str(), entry.Name.c_str()))
            entry.Number = number;
    }

    // Last: whoever is interrupted before leaves the old list, not half of the new one.
    WriteBinary(key, kListIndexValue, EncodeIndex(Entries));
}

CLayoutHints::CLayoutHints(const boost::shared_ptr<CRating>& list, const std::wstring& valueName)
    : ValueName(valueName), List(list)
{
    if (!List || ValueName.empty())
        ThrowInvalidArgument();
    const CVORegistry key(HKEY_LOCAL_MACHINE, List->KeyPath().c_str(), FALSE, FALSE, 0);
    const std::vector<uint8_t> layout = ReadBinary(key, ValueName.c_str());
    Slots = DecodeLayout(layout.data(), layout.size());
}

void CLayoutHints::Save() const
{
    CVORegistry key(HKEY_LOCAL_MACHINE, List->KeyPath().c_str(), TRUE, TRUE, 0);
    WriteBinary(key, ValueName.c_str(), EncodeLayout(Slots));
}

bool CMruSlots::IsPinned(std::wstring_view name) const
{
    for (size_t slot = 0; slot < Pinned; ++slot)
        if (os::EqualNoCase(Names[slot], name))
            return true;
    return false;
}

std::wstring LinkEntryName(std::wstring_view path)
{
    return std::wstring(L"l:").append(path);
}

std::wstring MenuEntryName(std::wstring_view keyPath)
{
    return std::wstring(L"m:").append(keyPath);
}

std::wstring EntryNameOf(const std::wstring& path, TargetKind kind)
{
    if (kind == TargetKind::Link)
        return LinkEntryName(path);
    CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0);
    const std::wstring file = key.GetString(kFileValue, nullptr);
    return IsShortcut(file) ? LinkEntryName(file) : MenuEntryName(path);
}

bool ReadGlobalMru(CMruSlots& slots, uint32_t count)
{
    return WithMemoryFailure(
        [&]
        {
            boost::shared_ptr<CRating> list;
            {
                const CGlobalMruLock lock(INFINITE);
                if (!lock.IsHeld())
                    return false;
                list.reset(new CRating(kGlobalListName));
            }
            CLayoutHints hints(list);
            const CPlacement placement = Place(list->Entries, count, hints.Slots);
            slots.Names.clear();
            for (const size_t entry : placement.Slots)
                slots.Names.push_back(list->Entries[entry].Name);
            slots.Pinned = static_cast<uint32_t>(placement.Pinned);
            if (placement.HintsChanged)
                hints.Save();
            return true;
        });
}

bool SetGlobalPinned(bool pin, const std::wstring& path, TargetKind kind, DWORD timeout)
{
    return WithMemoryFailure(
        [&]
        {
            const std::wstring name = EntryNameOf(path, kind);
            const CGlobalMruLock lock(timeout);
            if (!lock.IsHeld())
                return false;
            // Saving would create the key in any case: opened once, it serves the reading, too.
            CVORegistry key(HKEY_LOCAL_MACHINE, ListPath(kGlobalListName).c_str(), TRUE, FALSE, 0);
            CRating list(kGlobalListName, key);
            if (pin)
                list.Pin(name);
            else
                list.Unpin(name);
            list.Save(key);
            return true;
        });
}

} // namespace Ratings
