// The memory side of CMenuItem: its identity and its child array.
#include "menu/MenuItem.h"

#include <algorithm>
#include <utility>

#include "menu/MemoryFailure.h"
#include "platform/os/Text.h"

namespace
{

// The first item gets 1.
uint32_t NextId()
{
    static LONG lastId = 0;
    return static_cast<uint32_t>(InterlockedIncrement(&lastId));
}

bool StandsBefore(const CMenuItemPtr& left, const CMenuItemPtr& right)
{
    if (left->Index != right->Index)
        return left->Index < right->Index;
    return os::CompareNoCase(left->Text, right->Text) < 0;
}

} // namespace

CMenuItem::CMenuItem(CMenuItem* parent) : Id(NextId()), Parent(parent)
{
    if (!parent)
        ThrowInvalidArgument();
}

CMenuItem::CMenuItem(std::wstring keyPath) : Id(NextId()), KeyPath(std::move(keyPath)) {}

CMenuItem::~CMenuItem()
{
    for (const CMenuItemPtr& child : Children)
        LeaveParent(child.get());
}

// A dialog may hold a child for longer than the parent lives.
void CMenuItem::LeaveParent(CMenuItem* child)
{
    if (child && child->Parent == this)
        child->Parent = nullptr;
}

int32_t CMenuItem::FindChild(const CMenuItem* item) const
{
    if (!item)
        ThrowBroken();
    const auto found = std::find_if(Children.begin(), Children.end(),
                                    [&](const CMenuItemPtr& child) { return child.get() == item; });
    return found == Children.end() ? -1 : static_cast<int32_t>(found - Children.begin());
}

void CMenuItem::AppendChild(const CMenuItemPtr& item)
{
    if (!item)
        ThrowBroken();
    WithMemoryFailure([&] { Children.push_back(item); });
}

void CMenuItem::RemoveChildAt(int32_t position)
{
    if (position < 0 || position >= ChildCount())
        ThrowBroken();
    const auto place = Children.begin() + position;
    LeaveParent(place->get());
    Children.erase(place);
}

void CMenuItem::SwapChildren(int32_t first, int32_t second)
{
    if (first < 0 || first >= ChildCount() || second < 0 || second >= ChildCount())
        ThrowBroken();
    std::swap(Children[static_cast<size_t>(first)], Children[static_cast<size_t>(second)]);
}

void CMenuItem::SortChildren()
{
    std::stable_sort(Children.begin(), Children.end(), StandsBefore);
}

void CMenuItem::Renumber()
{
    for (int32_t position = 0; position < ChildCount(); ++position)
    {
        CMenuItem& child = *Children[static_cast<size_t>(position)];
        if (child.Index != position)
            child.SetIndex(position);
    }
}

bool CMenuItem::Move(bool up, bool checkOnly)
{
    if (!Parent)
        return false;
    const int32_t position = Parent->FindChild(this);
    const int32_t neighbour = up ? position - 1 : position + 1;
    if (position < 0 || neighbour < 0 || neighbour >= Parent->ChildCount())
        return false;
    if (!checkOnly)
        Parent->SwapChildren(position, neighbour);
    Parent->Renumber();
    return true;
}
