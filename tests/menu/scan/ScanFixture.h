// A tree view that the scan fills, over a Start Menu of the test's own.
#pragma once

#include "menu/ProgramScan.h"
#include "tests/support/FilterWindow.h"
#include "tests/support/StartMenu.h"
#include "tests/support/TreeDriver.h"

#include <gtest/gtest.h>

#include <memory>

// The launcher-menu process isn't there until it is started.
class ScanFixture : public testing::Test
{
protected:
    ScanFixture();
    ~ScanFixture() override;

    void StartFilter() { filter = std::make_unique<CFilterWindow>(); }
    void StartFilter(CFilterWindow::Answer answer)
    {
        filter = std::make_unique<CFilterWindow>(std::move(answer));
    }
    // Answers that way for paths that end in `name`, shows all others.
    void StartFilterBut(const std::wstring& name, LRESULT answer);

    // Fills the branch with check boxes, as the home dialog does, and returns it as text.
    std::wstring FillPinned(const std::vector<std::wstring>& names = {});
    // Fills the branch without them.
    std::wstring Fill(CProgramScan& scan);
    // A fresh branch.
    HTREEITEM ClearTree();

    CStartMenu menu;
    std::unique_ptr<CFilterWindow> filter;
    HWND window;
    CTreeDriver tree;
};
