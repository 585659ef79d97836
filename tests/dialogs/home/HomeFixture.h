// Opens Manage Pinned through the export over the sample menu and a Start Menu, and works it.
#pragma once

#include "tests/support/DialogRun.h"
#include "tests/support/FilterWindow.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/StartMenu.h"
#include "tests/support/TreeDriver.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

constexpr int kTreeId = 203;
// The message that tells the dialog of a switched box.
constexpr UINT kBoxSwitched = 0x8014;

// Boxes of the tree's nodes.
enum NodeBox : UINT
{
    NoBox = 0,
    BoxOff = 1,
    BoxOn = 2,
};

// An entry of the global list.
struct ListEntry
{
    std::wstring Name;
    WORD Weight;
};
constexpr WORD kPinned = 0x8000;

using Lines = std::vector<std::wstring>;

// The menu of CMenuSandbox, and in the Start Menu:
//
//     Calculator
//     Games
//       Bubbles
//     Mail
//
// All may be changed before Open.
class HomeFixture : public testing::Test
{
protected:
    HomeFixture();
    ~HomeFixture() override;

    // Opens the dialog and waits until it can be worked.
    void Open(DWORD maxPinned = 8);
    // Ends the dialog and checks the export's result.
    void Done();
    void Cancel();

    // The global list: written before Open or meanwhile; read back as "name" lines in its order, a
    // "*" in front of pinned ones.
    void StoreList(const std::vector<ListEntry>& entries);
    Lines List() const;
    DWORD Timestamp() const;

    // Names of entries: of the product's menu item at a path, of a file in the Start Menu.
    static std::wstring MenuName(const std::wstring& path);
    std::wstring LinkName(const std::wstring& below) const { return L"l:" + start.PathOf(below); }

    HTREEITEM Select(const std::wstring& path);
    UINT BoxOf(const std::wstring& path) const { return tree.BoxOf(tree.Find(path)); }
    bool IsBold(const std::wstring& path) const { return tree.IsBold(tree.Find(path)); }
    // Switches a node's box as the tree does when its box is tapped, and waits until the dialog has
    // dealt with it. Not for boxes behind which the limit waits.
    void Switch(const std::wstring& path);
    // The same without waiting.
    void PostSwitch(const std::wstring& path);
    // Waits for the limit's message, checks its text, and answers it.
    void ExpectLimitMessage(const std::wstring& text);

    CMenuSandbox registry;
    CStartMenu start;
    std::unique_ptr<CFilterWindow> filter;
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
    CTreeDriver tree{nullptr};
};
