// Opens every view of the five dialogs in one language, through the exports, over the sample
// device.
#pragma once

#include "tests/gallery/support/GalleryDevice.h"
#include "tests/gallery/support/GeometryCheck.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

// The parameter is the language.
class GalleryFixture : public testing::TestWithParam<std::string>
{
protected:
    ~GalleryFixture() override;

    // Runs an export and waits for its dialog.
    HWND Open(std::function<BOOL(HWND owner)> call);
    HWND OpenEditor();
    // Waits for a dialog owned by `below`, by the host with null, that can be worked; null and a
    // failed test without one.
    HWND WaitForNext(HWND below);
    // Ends the dialog over `below` and waits for that one.
    void EndBack(HWND dialog, HWND below);
    // Runs a command that opens a dialog over `below`, and waits for it.
    HWND OpenWith(HWND below, UINT command);
    // Ends the export's dialog and waits for its return.
    void End(HWND dialog);

    // The node that the positions lead to, from the root's child on; it is selected.
    static HTREEITEM SelectNode(HWND tree, std::initializer_list<int> positions);
    static void ExpandNode(HWND tree, HTREEITEM node);

    // Closes all menus.
    void CloseMenus();

    CGeometryCheck Check(const char* view) const { return CGeometryCheck(GetParam(), view); }

    CGalleryDevice device{GetParam()};
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
};
