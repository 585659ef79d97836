// The registry side of CMenuItem. Everything is written to the customisation layer; the product's
// and the shared component's layers are only read.
#include "menu/MenuItemStore.h"

#include "frame/TextFormat.h"
#include "frame/VORegistry.h"
#include "menu/MemoryFailure.h"
#include "menu/MenuItem.h"
#include "menu/MenuKeys.h"
#include "menu/MenuPaths.h"
#include "menu/MenuTree.h"
#include "platform/os/Text.h"

namespace
{

// "RtFlags" that holds this counts as absent.
constexpr DWORD kNoRtFlags = 0xFFFFFFFF;

// The longest name that a registry key can have.
constexpr size_t kLongestKeyName = 255;

// Opened when it exists, not flushed: for reading, and for changing what already is.
class CExistingKey : public CVORegistry
{
public:
    explicit CExistingKey(const std::wstring& path)
        : CVORegistry(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0)
    {
    }
};

// Created with all missing parents, flushed after a write.
class CCreatedKey : public CVORegistry
{
public:
    explicit CCreatedKey(const std::wstring& path, HKEY root = HKEY_LOCAL_MACHINE)
        : CVORegistry(root, path.c_str(), TRUE, TRUE, 0)
    {
    }
};

DWORD DwordOr(const CVORegistry& key, const wchar_t* name, DWORD absent)
{
    DWORD value = absent;
    key.GetDWORD(name, value);
    return value;
}

std::wstring StringOf(const std::wstring& keyPath, const wchar_t* name)
{
    return CExistingKey(keyPath).GetString(name, nullptr);
}

// The text as the customisation layer has it or, when it is empty there, as the item's own
// built-in key does.
std::wstring CustomisedString(const std::wstring& keyPath, const wchar_t* name)
{
    std::wstring text = StringOf(MirrorPath(keyPath), name);
    if (text.empty() && !IsCustomizePath(keyPath))
        text = StringOf(keyPath, name);
    return text;
}

// A backslash would lead to some other list's subkey, and longer names can't exist.
bool IsRatingName(const std::wstring& name)
{
    return !name.empty() && name.size() <= kLongestKeyName &&
           name.find(L'\\') == std::wstring::npos;
}

void DeleteRatingList(const std::wstring& name)
{
    if (name.empty())
        return;
    CCreatedKey ratings(kRatingsRootPath);
    if (IsRatingName(name))
        ratings.DeleteKeyTree(name.c_str());
}

} // namespace

std::wstring NewUserKeyName()
{
    CCreatedKey root(kCustomizeRootPath);
    const DWORD number = DwordOr(root, kLastKeyValue, 0) + 1;
    root.SetDWORD(kLastKeyValue, number);
    return L"User " + DecimalText(static_cast<int32_t>(number));
}

void CMenuItem::SetIndex(int32_t index)
{
    Index = index;
    WithMemoryFailure(
        [&] { CCreatedKey(MirrorPath(KeyPath)).SetDWORD(kIndexValue, static_cast<DWORD>(index)); });
}

void CMenuItem::SetInactive(bool inactive)
{
    Inactive = inactive;
    WithMemoryFailure(
        [&] { CCreatedKey(MirrorPath(KeyPath)).SetDWORD(kInactiveValue, inactive ? 1 : 0); });
}

void CMenuItem::SetText(const std::wstring& text)
{
    WithMemoryFailure(
        [&]
        {
            Text = text;
            CExistingKey(MirrorPath(KeyPath)).SetString(kTextValue, text.c_str());
        });
}

int32_t CMenuItem::GetImage() const
{
    return WithMemoryFailure(
        [&]
        {
            const CExistingKey key(MirrorPath(KeyPath));
            return static_cast<int32_t>(DwordOr(key, kImageValue, static_cast<DWORD>(kNoImage)));
        });
}

void CMenuItem::SetImage(int32_t image)
{
    WithMemoryFailure(
        [&]
        {
            CExistingKey key(MirrorPath(KeyPath));
            if (image == kNoImage)
                key.DeleteValue(kImageValue);
            else
                key.SetDWORD(kImageValue, static_cast<DWORD>(image));
        });
}

std::wstring CMenuItem::GetImagePath() const
{
    return WithMemoryFailure([&] { return StringOf(MirrorPath(KeyPath), kImagePathValue); });
}

std::wstring CMenuItem::GetFile() const
{
    return WithMemoryFailure([&] { return StringOf(MirrorPath(KeyPath), kFileValue); });
}

MenuDrawType CMenuItem::GetDrawType() const
{
    return WithMemoryFailure(
        [&]
        {
            return os::EqualNoCase(CustomisedString(KeyPath, kDrawTypeValue), kGridText)
                       ? MenuDrawType::Grid
                       : MenuDrawType::List;
        });
}

void CMenuItem::SetDrawType(MenuDrawType type)
{
    WithMemoryFailure(
        [&]
        {
            CCreatedKey(MirrorPath(KeyPath))
                .SetString(kDrawTypeValue, type == MenuDrawType::Grid ? kGridText : kListText);
        });
}

uint32_t CMenuItem::GetRtFlags() const
{
    return WithMemoryFailure(
        [&]() -> uint32_t
        {
            const DWORD flags =
                DwordOr(CExistingKey(MirrorPath(KeyPath)), kRtFlagsValue, kNoRtFlags);
            if (flags != kNoRtFlags)
                return flags;
            return IsCustomizePath(KeyPath) ? 0 : DwordOr(CExistingKey(KeyPath), kRtFlagsValue, 0);
        });
}

void CMenuItem::SetRtFlags(uint32_t flags)
{
    WithMemoryFailure([&] { CCreatedKey(MirrorPath(KeyPath)).SetDWORD(kRtFlagsValue, flags); });
}

std::wstring CMenuItem::GetRating() const
{
    return WithMemoryFailure(
        [&]
        {
            const std::wstring name = CustomisedString(KeyPath, kRatingValue);
            return IsRatingName(name) ? name : std::wstring();
        });
}

void CMenuItem::SetRated(bool on)
{
    WithMemoryFailure(
        [&]
        {
            CCreatedKey mirror(MirrorPath(KeyPath));
            if (on && CustomisedString(KeyPath, kRatingValue).empty())
                mirror.SetString(kRatingValue, NewUserKeyName().c_str());
            const uint32_t kept = GetRtFlags() & ~kRtMostUsedFirst;
            mirror.SetDWORD(kRtFlagsValue, kept | (on ? kRtMostUsedFirst | kRtHasRating : 0));
        });
}

bool CMenuItem::IsUserItem() const
{
    return WithMemoryFailure(
        [&]
        { return IsCustomizePath(KeyPath) && DwordOr(CExistingKey(KeyPath), kUserValue, 0) != 0; });
}

bool CMenuItem::CanAdd() const
{
    return WithMemoryFailure(
        [&]
        {
            if (!IsCustomizePath(KeyPath))
                return DwordOr(CExistingKey(KeyPath), kAddValue, 0) != 0;
            return IsUserItem() && GetFile().empty();
        });
}

CMenuItemPtr CMenuItem::AddLink(const std::wstring& path, CMenuTree& tree)
{
    return WithMemoryFailure(
        [&]
        {
            const std::wstring mirrorPath = MirrorPath(KeyPath);
            const CCreatedKey mirror(mirrorPath);
            const std::wstring name = NewUserKeyName();
            CCreatedKey key(name, mirror.Key);
            key.SetString(kFileValue, path.c_str());
            key.SetString(kImagePathValue, path.c_str());
            key.SetDWORD(kIndexValue, static_cast<DWORD>(ChildCount()));
            key.SetDWORD(kUserValue, 1);
            const std::wstring text = LinkText(path);
            key.SetString(kTextValue, text.c_str());
            return AppendUserItem(ChildPath(mirrorPath, name), text, tree);
        });
}

CMenuItemPtr CMenuItem::AddMenu(const std::wstring& text, int32_t image, CMenuTree& tree)
{
    return WithMemoryFailure(
        [&]
        {
            const std::wstring mirrorPath = MirrorPath(KeyPath);
            const CCreatedKey mirror(mirrorPath);
            const std::wstring name = NewUserKeyName();
            CCreatedKey key(name, mirror.Key);
            key.SetDWORD(kIndexValue, static_cast<DWORD>(ChildCount()));
            key.SetDWORD(kUserValue, 1);
            key.SetString(kTextValue, text.c_str());
            if (image != kNoImage)
                key.SetDWORD(kImageValue, static_cast<DWORD>(image));
            return AppendUserItem(ChildPath(mirrorPath, name), text, tree);
        });
}

// The last step of adding: the item in memory and the siblings' numbers.
CMenuItemPtr CMenuItem::AppendUserItem(const std::wstring& keyPath, const std::wstring& text,
                                       CMenuTree& tree)
{
    CMenuItemPtr item(new CMenuItem(this));
    item->KeyPath = keyPath;
    item->Text = text;
    item->Index = ChildCount();
    AppendChild(item);
    tree.Insert(item->Id, item);
    Renumber();
    return item;
}

bool CMenuItem::Remove(CMenuTree& tree)
{
    if (!IsUserItem())
        return false;
    return WithMemoryFailure(
        [&]
        {
            for (int32_t last = ChildCount() - 1; last >= 0; --last)
                CMenuItemPtr(Children[static_cast<size_t>(last)])->Remove(tree);

            if (!Parent)
                ThrowBroken();
            const std::wstring keyName = KeyNameOf(KeyPath);
            CCreatedKey parentMirror(MirrorPath(Parent->KeyPath));
            DeleteRatingList(StringOf(KeyPath, kRatingValue));
            parentMirror.DeleteKeyTree(keyName.c_str());

            const int32_t position = Parent->FindChild(this);
            const uint32_t id = Id;
            Parent->RemoveChildAt(position);
            tree.Erase(id);
            return true;
        });
}
