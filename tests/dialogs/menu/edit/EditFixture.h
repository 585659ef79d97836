// Opens the Edit Item dialogs and Choose Icon from the menu editor, and works them.
#pragma once

#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/ImageProcess.h"

#include <memory>
#include <string>
#include <vector>

// Controls, by the numbers that translations and other programs know them by.
constexpr int kNameId = 206;
constexpr int kPathId = 207;
constexpr int kIconId = 208;
constexpr int kChangeId = 209;
constexpr int kIconListId = 201;

// Fields of a request to draw, by their byte offsets, and its two kinds.
constexpr size_t kKindField = 0;
constexpr size_t kPathField = 4;
constexpr size_t kNumberField = 524;
constexpr uint32_t kDrawFile = 0;
constexpr uint32_t kDrawNumber = 2;

// Stands for no place in the list of icons.
constexpr int kNothing = -1;

// The colour in which the sample launcher-menu process draws an icon number, and that of files.
COLORREF ColourOfIcon(int number);
constexpr COLORREF kFileColour = RGB(0, 255, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

// The sample menu may be changed before the first dialog opens.
class EditFixture : public EditorFixture
{
protected:
    EditFixture();
    ~EditFixture() override;

    // Starts a launcher-menu process that draws that many icons from number 100 on, and files only
    // if told so.
    void StartProcess(int icons = 40, bool drawsFiles = false);
    // Starts one that answers every request with `answer` and draws nothing.
    void StartRogue(LRESULT answer);
    // The values of a field in the requests of one kind, in order.
    std::vector<uint32_t> Asked(uint32_t kind, size_t field = kNumberField) const;

    // A value of an item in the sample menu, of the product's layer.
    void SetProduct(const std::wstring& path, const wchar_t* name, DWORD value);

    // Opens Edit Item for the node at a path of labels, after the editor if that is not open yet.
    void OpenEdit(const std::wstring& path) { OpenWith(CommandEdit, path); }
    // The same for a new menu below the node.
    void OpenAdd(const std::wstring& path) { OpenWith(CommandAddMenu, path); }
    // Opens Choose Icon from Edit Item.
    void OpenChoice();
    // Ends Choose Icon and waits for Edit Item.
    void EndChoice(UINT command);
    // Ends Edit Item and waits for the editor.
    void EndEdit(UINT command);
    // Chooses the icon at a place in Choose Icon, from Edit Item and back to it.
    void Choose(int place);
    // Runs a command of the editor that must open nothing for the node at a path.
    void ExpectNothingOpens(EditorCommand command, const std::wstring& path);
    void ExpectNothingOpens(EditorCommand command);
    // Makes the node at a path stand for no item.
    void Orphan(const std::wstring& path);

    std::wstring Name() const;
    void SetName(const std::wstring& name) { SetWindowTextW(Control(kNameId), name.c_str()); }
    HWND Control(int id) const { return GetDlgItem(edit, id); }
    // Checks that the whole preview turns into a colour.
    void ExpectPreview(COLORREF colour) const;
    // Whether the preview's picture is all white now.
    bool IsPreviewWhite() const;

    LRESULT ToList(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageW(list, message, wParam, lParam);
    }
    int Count() const { return static_cast<int>(ToList(LVM_GETITEMCOUNT)); }
    // The place of the first item that has a state (LVNI_...); -1 without one.
    int PlaceWith(UINT state) const;
    // Selects a place alone, or nothing.
    void SelectPlace(int place) const;

    std::unique_ptr<CImageProcess> process;
    HWND edit = nullptr;
    HWND choice = nullptr;
    HWND list = nullptr;

private:
    void OpenWith(EditorCommand command, const std::wstring& path);
};
