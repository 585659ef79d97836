#include "tests/support/SoftKeys.h"

namespace
{

using FindMenuBar = HWND(WINAPI*)(HWND window);

TBBUTTON KeyAt(HWND dialog, int key)
{
    TBBUTTON button = {};
    SendMessageW(SoftKeyBar(dialog), TB_GETBUTTON, static_cast<WPARAM>(key),
                 reinterpret_cast<LPARAM>(&button));
    return button;
}

} // namespace

HWND SoftKeyBar(HWND dialog)
{
    const HMODULE shell = GetModuleHandleW(L"aygshell.dll");
    const auto find = reinterpret_cast<FindMenuBar>(
        reinterpret_cast<void*>(GetProcAddress(shell, "SHFindMenuBar")));
    return find ? find(dialog) : nullptr;
}

int SoftKeyCount(HWND dialog)
{
    return static_cast<int>(SendMessageW(SoftKeyBar(dialog), TB_BUTTONCOUNT, 0, 0));
}

std::wstring SoftKeyText(HWND dialog, int key)
{
    wchar_t text[256] = {};
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT | TBIF_BYINDEX;
    info.pszText = text;
    info.cchText = 256;
    SendMessageW(SoftKeyBar(dialog), TB_GETBUTTONINFOW, static_cast<WPARAM>(key),
                 reinterpret_cast<LPARAM>(&info));
    return text;
}

UINT SoftKeyCommand(HWND dialog, int key)
{
    return static_cast<UINT>(KeyAt(dialog, key).idCommand);
}

HMENU SoftKeyMenu(HWND dialog, int key)
{
    return reinterpret_cast<HMENU>(KeyAt(dialog, key).dwData);
}

std::wstring MenuText(HMENU menu, UINT position)
{
    wchar_t text[256] = {};
    GetMenuStringW(menu, position, text, 256, MF_BYPOSITION);
    return text;
}
