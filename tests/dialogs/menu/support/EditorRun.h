// One run of Customize Menu through the export, over whatever menu the registry holds: for the
// fixture of the dialog's own tests and for processes that work it without one.
#pragma once

#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/TreeDriver.h"

#include <memory>
#include <string>

// Opens the dialog and ends it. Everything that goes wrong fails the running test.
class CEditorRun
{
public:
    // Cancels a dialog that is still open.
    ~CEditorRun();

    // Opens the dialog and waits until it can be worked.
    void Open();
    // Selects the node at a path of labels; null when there is none.
    HTREEITEM Select(const std::wstring& path);
    // Ends the dialog and checks the export's result.
    void Done();
    void Cancel();
    // Cancels a dialog that is still open and unloads the module.
    void Close();

    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
    CTreeDriver tree{nullptr};

private:
    void EndWith(UINT command, BOOL result);
};
