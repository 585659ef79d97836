// Opens Select City through the export over a database of the test's own, and works it.
#pragma once

#include "tests/dialogs/city/CityFolder.h"
#include "tests/dialogs/city/SampleCities.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// Controls, by the numbers that hosts know them by.
constexpr int kSearchId = 201;
constexpr int kListId = 202;

// The codes of failures that leave the export.
constexpr HRESULT kBroken = static_cast<HRESULT>(0x84000001);

// No sample city has this identifier.
constexpr DWORD kNobody = 4711;

using Texts = std::vector<std::wstring>;

// A record whose every byte but the identifier is 0x5A.
CITYINFO RecordOf(DWORD identifier);
bool operator==(const CITYINFO& left, const CITYINFO& right);

// The folder is the installation folder; the sample cities lie in it until Open, unless the test
// installs something else before.
class CityFixture : public testing::Test
{
protected:
    CityFixture();
    ~CityFixture() override;

    // Calls the export with a record of this identifier.
    void Call(DWORD identifier = kNobody);
    // Calls it and waits until the dialog can be worked.
    void Open(DWORD identifier = kNobody);
    void FindControls();

    // What the search box holds becomes this text.
    void Type(const std::wstring& text) const;
    // The texts of a column, row by row; of all rows or of the first few.
    Texts Column(int column, int rows = -1) const;
    Texts Names() const { return Column(0); }
    std::wstring CellText(int row, int column) const;
    int RowCount() const { return static_cast<int>(ToList(LVM_GETITEMCOUNT)); }
    int Mark() const { return static_cast<int>(ToList(LVM_GETSELECTIONMARK)); }
    // Rows with that state (LVNI_SELECTED or LVNI_FOCUSED).
    std::vector<int> RowsWith(UINT state) const;
    RECT RowRect(int row) const;
    // Whether all of the row lies in the list's client area.
    bool IsRowVisible(int row) const;
    // Makes a row the selected one, as the arrow keys do.
    void Select(int row) const;
    // The middle of a row on the screen.
    POINT PlaceOf(int row) const;

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

    CRegistrySandbox registry;
    CCityFolder folder;
    CITYINFO city = {};
    // The record as it was handed to the export.
    CITYINFO before = {};
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
    HWND search = nullptr;
    HWND list = nullptr;
};
