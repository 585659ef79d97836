// The translator's work on windows, dialogs and menus.
#include "frame/Localizer.h"

#include "platform/os/Text.h"

#include <aygshell.h>

#include <algorithm>
#include <set>
#include <vector>

namespace
{

// Window texts are read up to this many characters, and one more for the terminating zero.
constexpr int kWindowTextSize = 4096 + 1;
// For menu and combo-box items, the terminating zero included.
constexpr UINT kItemSize = 4096;
constexpr int kButtonTextSize = 256;
constexpr int kClassNameSize = 257;

INT_PTR CALLBACK HandleNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

bool IsComboBox(HWND window)
{
    wchar_t name[kClassNameSize] = {};
    GetClassNameW(window, name, kClassNameSize);
    return os::EqualNoCase(name, L"combobox");
}

// Reads a combo-box item; false when there is none or it is too long for the buffer of kItemSize.
bool ItemText(HWND combo, WPARAM index, std::vector<wchar_t>& buffer)
{
    const LRESULT length = SendMessageW(combo, CB_GETLBTEXTLEN, index, 0);
    if (length == CB_ERR || length < 0 || length >= static_cast<LRESULT>(kItemSize))
        return false;
    // An item without a text of its own fills the buffer with its data, without a zero.
    std::fill(buffer.begin(), buffer.end(), L'\0');
    return SendMessageW(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(buffer.data())) !=
           CB_ERR;
}

} // namespace

HWND CTavLocalizerAPI::CreateDialogFromResource(HINSTANCE instance, const wchar_t* templateName,
                                                HWND parent)
{
    const HRSRC resource = FindResourceW(instance, templateName, RT_DIALOG);
    const HGLOBAL memory = resource ? LoadResource(instance, resource) : nullptr;
    const void* const dialog = memory ? LockResource(memory) : nullptr;
    if (!dialog)
        return nullptr;
    return CreateDialogIndirectParamW(instance, static_cast<const DLGTEMPLATE*>(dialog), parent,
                                      HandleNothing, 0);
}

void CTavLocalizerAPI::TranslateWindowText(HWND window) const
{
    if (!IsWindow(window))
        return;
    std::vector<wchar_t> buffer(kWindowTextSize);
    GetWindowTextW(window, buffer.data(), kWindowTextSize);
    if (const wchar_t* const translation = Translation(buffer.data()))
        SetWindowTextW(window, translation);
}

void CTavLocalizerAPI::TranslateComboBox(HWND window) const
{
    std::vector<wchar_t> buffer(kItemSize);
    const LRESULT count = SendMessageW(window, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i)
    {
        const auto index = static_cast<WPARAM>(i);
        if (!ItemText(window, index, buffer))
            continue;
        const wchar_t* const translation = Translation(buffer.data());
        if (!translation)
            continue;
        SendMessageW(window, CB_DELETESTRING, index, 0);
        SendMessageW(window, CB_INSERTSTRING, index, reinterpret_cast<LPARAM>(translation));
    }
}

void CTavLocalizerAPI::TranslateDialog(HWND dialog) const
{
    if (!IsWindow(dialog))
        return;
    TranslateWindowText(dialog);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        TranslateWindowText(child);
        if (IsComboBox(child))
            TranslateComboBox(child);
    }
}

// Translates one item of a menu, false behind the last one; `buffer` has room for kItemSize
// characters.
bool CTavLocalizerAPI::TranslateMenuItem(HMENU menu, UINT position, wchar_t* buffer) const
{
    // An item that is no text leaves the buffer as it is: empty, which has no translation.
    buffer[0] = L'\0';
    MENUITEMINFOW info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_TYPE;
    info.dwTypeData = buffer;
    info.cch = kItemSize;
    if (!GetMenuItemInfoW(menu, position, TRUE, &info))
        return false;
    if (const wchar_t* const translation = Translation(buffer))
    {
        info.dwTypeData = const_cast<wchar_t*>(translation);
        SetMenuItemInfoW(menu, position, TRUE, &info);
    }
    return true;
}

void CTavLocalizerAPI::TranslateMenu(HMENU menu) const
{
    // A list instead of recursion: menus may be nested a thousand deep, or contain each other.
    std::vector<wchar_t> buffer(kItemSize);
    std::set<HMENU> seen = {menu};
    std::vector<HMENU> waiting = {menu};
    while (!waiting.empty())
    {
        const HMENU current = waiting.back();
        waiting.pop_back();
        for (UINT position = 0; TranslateMenuItem(current, position, buffer.data()); ++position)
        {
            const HMENU popup = GetSubMenu(current, static_cast<int>(position));
            if (popup && seen.insert(popup).second)
                waiting.push_back(popup);
        }
    }
}

void CTavLocalizerAPI::TranslateMenuBar(HWND window, BOOL isMenuBar) const
{
    const HWND bar = isMenuBar ? window : SHFindMenuBar(window);
    if (!IsWindow(bar))
        return;
    const auto count = static_cast<int>(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0));
    for (int index = count - 1; index >= 0; --index)
        TranslateButton(bar, index);
}

void CTavLocalizerAPI::TranslateButton(HWND bar, int index) const
{
    TBBUTTON button = {};
    if (!SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(index),
                      reinterpret_cast<LPARAM>(&button)))
        return;
    const auto command = static_cast<WPARAM>(button.idCommand);
    wchar_t text[kButtonTextSize] = {};
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT | TBIF_LPARAM;
    info.pszText = text;
    info.cchText = kButtonTextSize;
    if (SendMessageW(bar, TB_GETBUTTONINFOW, command, reinterpret_cast<LPARAM>(&info)) == -1)
        return;
    if (Translation(text))
    {
        TranslateTextToBuffer(text, text, kButtonTextSize);
        SendMessageW(bar, TB_SETBUTTONINFOW, command, reinterpret_cast<LPARAM>(&info));
    }
    if (info.lParam)
        TranslateMenu(reinterpret_cast<HMENU>(info.lParam));
}
