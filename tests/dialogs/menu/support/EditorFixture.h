// Opens Customize Menu through the export over the sample menu, and works it.
#pragma once

#include "tests/support/DialogRun.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/TreeDriver.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// Commands and controls, by the numbers that hosts know them by.
enum EditorCommand : UINT
{
    CommandEdit = 32772,
    CommandRemove = 32773,
    CommandMoveDown = 32774,
    CommandMoveUp = 32775,
    CommandAddMenu = 32782,
    CommandAddLink = 32783,
    CommandAddFile = 32785,
    CommandOptions = 32792,
};
constexpr int kTreeId = 203;

// Boxes of the tree's nodes.
enum NodeBox : UINT
{
    NoBox = 0,
    BoxOff = 1,
    BoxOn = 2,
};

// The sample menu may be changed before Open.
class EditorFixture : public testing::Test
{
protected:
    ~EditorFixture() override;

    // Opens the dialog and waits until it can be worked.
    void Open();
    // Selects the node at a path of labels.
    HTREEITEM Select(const std::wstring& path);
    // Ends the dialog and checks the export's result.
    void Done();
    void Cancel();
    // Checks that the export threw the given code.
    void ExpectThrown(HRESULT code);

    // Whether a command is enabled in the menu that would open now for the selected node.
    bool IsEnabled(EditorCommand command);
    // The commands that are enabled for the node at a path, sorted by number.
    std::vector<UINT> EnabledFor(const std::wstring& path);

    // Opens Menu Options for the node at a path.
    HWND OpenOptions(const std::wstring& path, const std::wstring& title);

    CMenuSandbox registry;
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
    CTreeDriver tree{nullptr};
};

// The pop-up of the dialog's right soft key.
HMENU MenuOfSoftKey(HWND dialog);
// The flags of a command in a menu or its sub-menus.
UINT StateOf(HMENU menu, UINT command);
