// Measures how long a dialog with a tree takes from the call until its first picture is on the
// screen, and what the least such dialog takes. Shared by the benchmarks of the dialogs.
#pragma once

#include <functional>
#include <vector>

#include "menu/MenuItem.h"
#include "tests/support/ImportPatch.h"

namespace opening
{

// Seconds from the call of `open`, which shows a dialog with a tree view or another control of
// that class, until the control was painted; the dialog is cancelled then.
double TimeToPaint(const std::function<void()>& open,
                   const wchar_t* controlClass = L"SysTreeView32");

// The least dialog that shows something.
struct BareDialog
{
    // Makes its controls.
    std::function<void(HWND dialog)> Show;
    // Where the soft keys of `SoftKeyMenu` are taken from; null for a dialog without any.
    HINSTANCE SoftKeys;
    UINT SoftKeyMenu;
    // Frees what the controls leave; may be empty.
    std::function<void(HWND dialog)> Close = {};
};
// TimeToPaint of that dialog, over the whole screen.
double TimeOfBareDialog(HWND owner, const BareDialog& request, const wchar_t* controlClass);

// A bare dialog with a tree.
struct LimitRequest
{
    // Fills the tree below its root node.
    std::function<void(HWND tree, HTREEITEM root)> Fill;
    // Where the soft keys of `SoftKeyMenu` are taken from; null for a dialog without any.
    HINSTANCE SoftKeys;
    UINT SoftKeyMenu;
};
// TimeToPaint of a dialog that shows that tree, filled without redrawing, and nothing else.
double TimeOfLimit(HWND owner, const LimitRequest& request);

// Inserts one node as the last; returns it. With its box checked.
HTREEITEM InsertNode(HWND tree, HTREEITEM parent, const wchar_t* text, LPARAM data);
// Inserts a node for every item below `item`.
void InsertItems(HWND tree, HTREEITEM parent, const CMenuItem& item);

// The part of an opening that a module spends on the registry: from the first opened to the last
// closed key. Watches from construction to destruction, one at a time.
class CReadingTime
{
public:
    explicit CReadingTime(HMODULE module);
    // Begins anew.
    void Reset();
    double Seconds() const;

private:
    CImportPatch m_open;
    CImportPatch m_close;
};

double Median(std::vector<double> values);
void PrintMedian(const char* what, const std::vector<double>& seconds);

} // namespace opening
