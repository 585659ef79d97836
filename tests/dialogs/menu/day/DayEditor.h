// Works Customize Menu and its sub-dialogs by one call per command. Used by the script of the day
// and by the tests that look at what it left.
#pragma once

#include "tests/dialogs/menu/support/EditorRun.h"

#include <initializer_list>
#include <string>

// Nodes are named by their path of labels. Each call returns when its command is done.
class CDayEditor : public CEditorRun
{
public:
    // For an icon that isn't changed.
    static constexpr int kKeepIcon = -1;

    // Adds a menu; `icon` is the place in Choose Icon.
    void AddMenu(const std::wstring& parent, const std::wstring& name, int icon = kKeepIcon);
    // Adds what is chosen in Select Link and in Select File, again by a path of labels.
    void AddLink(const std::wstring& parent, const std::wstring& link);
    void AddFile(const std::wstring& parent, const std::wstring& folder, const std::wstring& file);
    // Edits a user's item; it must show `path`, which is empty for a menu.
    void Edit(const std::wstring& item, const std::wstring& path, const std::wstring& name,
              int icon = kKeepIcon);
    // Clicks on these controls of Menu Options.
    void SetOptions(const std::wstring& menu, const std::wstring& title,
                    std::initializer_list<int> clicks);
    // The commands without a dialog.
    void MoveUp(const std::wstring& item);
    void MoveDown(const std::wstring& item);
    void Remove(const std::wstring& item);
    // Opens the soft keys' menu as far as its commands are enabled.
    void LookAtCommands(const std::wstring& item);
    // 1 = off, 2 = on; written when the editor is done.
    void SwitchBox(const std::wstring& item, UINT box);
    // "Done", with a look at the tree before.
    void EndSitting();
    // What the tree showed at the end of the last sitting.
    std::wstring treeAtEnd;

    // Opens a sub-dialog by a command for an item and cancels it.
    void OpenAndCancel(const std::wstring& item, UINT command, const std::wstring& title);

private:
    HWND OpenSubDialog(const std::wstring& item, UINT command, const std::wstring& title);
    // Ends a sub-dialog and waits until the one that opened it is back.
    void End(HWND subDialog, UINT command, const std::wstring& backTo = L"Customize Menu");
    void ChooseIcon(HWND editItem, int icon);
    void FillEditItem(HWND editItem, const std::wstring& name, int icon);
    void Command(const std::wstring& item, UINT command);
};
