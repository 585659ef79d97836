// Opens Customize Menu through the export over the sample menu, and works it.
#pragma once

#include "tests/dialogs/menu/support/EditorRun.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/SoftKeys.h"

#include <gtest/gtest.h>

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
class EditorFixture : public testing::Test, protected CEditorRun
{
protected:
    ~EditorFixture() override;

    // Checks that the export threw the given code.
    void ExpectThrown(HRESULT code);

    // Whether a command is enabled in the menu that would open now for the selected node.
    bool IsEnabled(EditorCommand command);
    // The commands that are enabled for the node at a path, sorted by number.
    std::vector<UINT> EnabledFor(const std::wstring& path);

    // Opens Menu Options for the node at a path.
    HWND OpenOptions(const std::wstring& path, const std::wstring& title);

    CMenuSandbox registry;
};

// The pop-up of the dialog's right soft key.
HMENU MenuOfSoftKey(HWND dialog);
// The flags of a command in a menu or its sub-menus.
UINT StateOf(HMENU menu, UINT command);
