#include "tests/device/ModuleTexts.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/Win.h"
#include "platform/Handles.h"

namespace
{

using Texts = std::set<std::wstring>;

void Add(Texts& texts, const std::wstring& text)
{
    const bool hasLetter =
        std::any_of(text.begin(), text.end(), [](wchar_t unit) { return IsCharAlphaW(unit); });
    if (hasLetter)
        texts.insert(text);
}

std::wstring WindowText(HWND window)
{
    wchar_t text[1024];
    return std::wstring(text, static_cast<size_t>(GetWindowTextW(window, text, 1024)));
}

INT_PTR CALLBACK HandleNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

void AddDialog(HMODULE module, const wchar_t* name, Texts& texts)
{
    const UniqueWindow dialog(CreateDialogParamW(module, name, nullptr, HandleNothing, 0));
    ASSERT_TRUE(dialog) << "a dialog template can't be shown";
    Add(texts, WindowText(dialog.get()));
    for (HWND child = GetWindow(dialog.get(), GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT))
        Add(texts, WindowText(child));
}

void AddMenu(HMENU menu, Texts& texts)
{
    for (int i = 0; i < GetMenuItemCount(menu); ++i)
    {
        wchar_t text[256];
        Add(texts, std::wstring(text, static_cast<size_t>(
                                          std::max(0, GetMenuStringW(menu, static_cast<UINT>(i),
                                                                     text, 256, MF_BYPOSITION)))));
        if (const HMENU popup = GetSubMenu(menu, i))
            AddMenu(popup, texts);
    }
}

// A block of strings holds sixteen; its name is one more than their ids' upper part.
void AddStrings(HMODULE module, const wchar_t* block, Texts& texts)
{
    const UINT first = (static_cast<UINT>(reinterpret_cast<uintptr_t>(block)) - 1) * 16;
    for (UINT id = first; id < first + 16; ++id)
    {
        wchar_t text[1024];
        Add(texts, std::wstring(text, static_cast<size_t>(LoadStringW(module, id, text, 1024))));
    }
}

struct Collection
{
    HMODULE Module;
    Texts Found;
};

BOOL CALLBACK AddResource(HMODULE module, const wchar_t* type, wchar_t* name, LONG_PTR parameter)
{
    Texts& texts = reinterpret_cast<Collection*>(parameter)->Found;
    if (type == RT_DIALOG)
        AddDialog(module, name, texts);
    else if (type == RT_MENU)
        AddMenu(UniqueMenu(LoadMenuW(module, name)).get(), texts);
    else
        AddStrings(module, name, texts);
    return TRUE;
}

} // namespace

std::set<std::wstring> TextsOfModule(const wchar_t* file)
{
    INITCOMMONCONTROLSEX all = {sizeof(all), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&all);
    Collection collection = {LoadLibraryW(file), {}};
    EXPECT_NE(nullptr, collection.Module) << "the module isn't beside the test program";
    if (!collection.Module)
        return {};
    for (wchar_t* type : {RT_DIALOG, RT_MENU, RT_STRING})
        EnumResourceNamesW(collection.Module, type, AddResource,
                           reinterpret_cast<LONG_PTR>(&collection));
    FreeLibrary(collection.Module);
    return collection.Found;
}
