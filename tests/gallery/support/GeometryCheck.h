// Looks over the windows of an open view for texts that don't fit and controls that stand wrong.
#pragma once

#include "platform/Win.h"

#include <set>
#include <string>
#include <vector>

#include "device/PaintingRecorder.h"

// Whether a dialog has the title band at its top; the install wizard has none.
enum class TitleBand
{
    Painted,
    None
};

// Everything it finds fails the running test, by language, screen, view, control, text, and the
// pixels that are needed and given.
class CGeometryCheck
{
public:
    CGeometryCheck(const std::string& language, const std::string& view);

    // A full-screen dialog with its title, soft keys and controls.
    void Dialog(HWND dialog, TitleBand band = TitleBand::Painted);
    // A message box of the system's.
    void MessageBox(HWND box);
    // The pop-up menus that a thread has open.
    void Menus(DWORD threadId);
    // The soft keys of a dialog or of the shell's window.
    void SoftKeys(HWND window);
    // What the device's own windows have drawn: their words must be whole; the `names` of what is
    // on the device may end in an ellipsis.
    void Drawn(const std::vector<painting::DrawnText>& texts, const std::set<std::wstring>& names);

private:
    void Title(HWND dialog);
    void SoftKey(HWND dialog, int key);
    void Controls(HWND dialog, const RECT& room);
    void Overlaps(HWND dialog);
    void Control(HWND control);
    void Static(HWND control, const std::wstring& text);
    void Button(HWND control, const std::wstring& text);
    void Edit(HWND control);
    void Tree(HWND tree);
    void List(HWND list);
    void Row(HWND list, int row);
    void Menu(HWND popup);
    void MenuItem(HWND popup, HMENU menu, UINT position);

    // `part` is what of the view the finding is about.
    void Inside(const std::string& part, const RECT& inner, const RECT& outer) const;
    void Fits(const std::string& part, const std::wstring& text, SIZE needed, SIZE given) const;
    void Fail(const std::string& part, const std::string& text) const;

    std::string m_language;
    std::string m_view;
};
