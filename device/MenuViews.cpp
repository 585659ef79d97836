#include "device/MenuViews.h"

#include <aygshell.h>

#include <initializer_list>

#include "device/OpenWindows.h"
#include "device/Stylus.h"
#include "device/TreeInput.h"
#include "device/Waiting.h"

namespace
{

// Where the sample menu has its games, which fit on one screen; and the user's favourites, in which
// the first is a link.
constexpr int kGamesPosition = 7;
constexpr int kFavoritesPosition = 4;
constexpr int kLinkPosition = 0;

// From the open menu of the soft key to its commands.
constexpr std::initializer_list<WORD> kToOptions = {VK_UP, VK_RETURN};
constexpr std::initializer_list<WORD> kToEdit = {VK_UP, VK_UP, VK_UP, VK_UP, VK_RETURN};
constexpr std::initializer_list<WORD> kToAdd = {VK_UP, VK_UP, VK_RIGHT};
constexpr std::initializer_list<WORD> kToAddLink = {VK_UP, VK_UP, VK_RIGHT, VK_DOWN, VK_RETURN};
constexpr std::initializer_list<WORD> kToAddFile = {VK_UP,   VK_UP,   VK_RIGHT,
                                                    VK_DOWN, VK_DOWN, VK_RETURN};

std::wstring OpenSoftKeyMenu(HWND editor)
{
    const HWND bar = SHFindMenuBar(editor);
    RECT area = {};
    if (!bar || !GetWindowRect(bar, &area))
        return L"there are no soft keys";
    const POINT key = {area.left + (area.right - area.left) * 3 / 4, (area.top + area.bottom) / 2};
    const bool isOpen = stylus::TapUntil([&] { return key; }, open::IsMenuOpen);
    return isOpen ? L"" : L"the soft key opened no menu";
}

// Holds the stylus on the selected label until the menu is there.
std::wstring OpenContextMenu(HWND tree, HTREEITEM node)
{
    const POINT middle = treeinput::MiddleOf(tree, node);
    stylus::Down(middle);
    const bool isOpen = open::WaitForMenu();
    stylus::Up(middle);
    return isOpen ? L"" : L"holding the stylus opened no menu";
}

// The soft key's menu and the one of things to add.
std::wstring OpenAddMenu(HWND editor)
{
    std::wstring problem = OpenSoftKeyMenu(editor);
    if (!problem.empty())
        return problem;
    for (const WORD key : kToAdd)
        stylus::Key(key);
    return waiting::Until([] { return open::MenuCount() == 2; }) ? L"" : L"no second menu opened";
}

HWND WaitForSubDialog(HWND above)
{
    return open::WaitForDialog(GetWindowThreadProcessId(above, nullptr), above);
}

// Opens a sub-dialog with the soft key's menu and some keys in it.
std::wstring OpenWith(HWND editor, std::initializer_list<WORD> keys, HWND& opened)
{
    std::wstring problem = OpenSoftKeyMenu(editor);
    if (!problem.empty())
        return problem;
    for (const WORD key : keys)
        stylus::Key(key);
    opened = WaitForSubDialog(editor);
    return opened ? L"" : L"the command opened no dialog";
}

// The whole menu's options, most of which can't be changed.
std::wstring OpenRootOptions(HWND editor, HWND tree)
{
    HWND opened = nullptr;
    return treeinput::Select(tree, treeinput::Root(tree)) ? OpenWith(editor, kToOptions, opened)
                                                          : L"the root can't be selected";
}

std::wstring OpenGames(HWND editor, HWND tree, const std::wstring& view)
{
    const HTREEITEM games = treeinput::Open(tree, {kGamesPosition});
    HWND opened = nullptr;
    if (!games)
        return L"the folder can't be opened";
    if (view == L"customize-menu-popup")
        return OpenSoftKeyMenu(editor);
    if (view == L"customize-menu-add")
        return OpenAddMenu(editor);
    if (view == L"customize-menu-context")
        return OpenContextMenu(tree, games);
    if (view == L"menu-options")
        return OpenWith(editor, kToOptions, opened);
    return {};
}

// The first folder below the root.
std::wstring OpenFirstFolder(HWND dialog)
{
    const HWND tree = treeinput::TreeOf(dialog);
    int position = 0;
    while (HTREEITEM node = treeinput::Child(tree, treeinput::Root(tree), position))
    {
        if (treeinput::Child(tree, node, 0))
            break;
        ++position;
    }
    return treeinput::Open(tree, {position}) ? L"" : L"a folder can't be opened";
}

std::wstring OpenChooseIcon(HWND editItem)
{
    stylus::Key(VK_TAB);
    stylus::Key(VK_SPACE);
    return WaitForSubDialog(editItem) ? L"" : L"no icons to choose from appeared";
}

std::wstring OpenEdit(HWND editor, HWND tree, const std::wstring& view)
{
    const HTREEITEM menu = treeinput::Open(tree, {kFavoritesPosition});
    HWND opened = nullptr;
    if (!menu)
        return L"the folder can't be opened";
    if (view == L"edit-item" &&
        !treeinput::Select(tree, treeinput::Child(tree, menu, kLinkPosition)))
        return L"the link can't be selected";
    if (view == L"select-file" || view == L"select-link")
    {
        const std::wstring problem =
            OpenWith(editor, view == L"select-file" ? kToAddFile : kToAddLink, opened);
        return problem.empty() ? OpenFirstFolder(opened) : problem;
    }
    const std::wstring problem = OpenWith(editor, kToEdit, opened);
    return problem.empty() && view == L"choose-icon" ? OpenChooseIcon(opened) : problem;
}

} // namespace

std::wstring BringUpMenuView(HWND editor, const std::wstring& view)
{
    const HWND tree = treeinput::TreeOf(editor);
    if (!tree)
        return L"there is no tree";
    if (view == L"menu-options-root")
        return OpenRootOptions(editor, tree);
    const bool isOfGames = view.compare(0, 14, L"customize-menu") == 0 || view == L"menu-options";
    return isOfGames ? OpenGames(editor, tree, view) : OpenEdit(editor, tree, view);
}
