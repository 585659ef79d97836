// Opens Customize Now Screen through the export over registrations of the test's own, and works it.
#pragma once

#include "tests/dialogs/now/NowSandbox.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// Controls, by the numbers that hosts know them by.
constexpr int kListId = 202;
constexpr int kEmptyTextId = 219;
constexpr int kExplanationId = 220;

constexpr const wchar_t* kNowTitle = L"Customize Now Screen";

// The code of a broken precondition that leaves the export.
constexpr HRESULT kBroken = static_cast<HRESULT>(0x84000001);

using Labels = std::vector<std::wstring>;

// Registrations are added before Open.
class NowFixture : public testing::Test
{
protected:
    ~NowFixture() override;

    // Calls the export.
    void Call();
    // Calls it and waits until the dialog can be worked.
    void Open(const std::wstring& title = kNowTitle);

    int RowCount() const { return static_cast<int>(ToList(LVM_GETITEMCOUNT)); }
    std::wstring LabelOf(int row) const;
    // The labels of all rows, of the checked ones.
    Labels AllLabels() const;
    Labels CheckedLabels() const;
    // The row with that label; -1 and a failed test without one.
    int RowOf(const std::wstring& label) const;
    // The state image of a row: 1 for an empty box, 2 for a checked one.
    UINT BoxOf(int row) const;
    // Puts a row's box into that state.
    void Check(const std::wstring& label, bool checked) const { CheckRow(RowOf(label), checked); }
    void CheckRow(int row, bool checked) const;
    DWORD DataOf(int row) const;
    void SetData(int row, DWORD data) const;
    bool IsShown(int control) const;

    LRESULT ToList(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageW(list, message, wParam, lParam);
    }

    // Ends the dialog and checks the export's result.
    void Done();
    void Cancel();
    void ExpectEnd(BOOL result);
    // Checks that the export threw the given code and left nothing behind.
    void ExpectThrown(HRESULT code);

    CNowSandbox registry;
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
    HWND list = nullptr;
};
