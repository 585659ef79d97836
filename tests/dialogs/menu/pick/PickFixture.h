// Opens Select File and Select Link from the menu editor, each over files of the test's own.
#pragma once

#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/FilterWindow.h"
#include "tests/support/StartMenu.h"

#include <memory>

using Lines = std::vector<std::wstring>;

// A picker that is open over the editor.
class PickFixture : public EditorFixture
{
protected:
    // Loads the module, for tests that watch it before the editor opens.
    void LoadModule();
    // Opens the picker of a command for the node of the editor's tree at a path of labels.
    void OpenPicker(EditorCommand command, const std::wstring& menu);
    // Selects the picker's node at a path of labels; it must exist.
    HTREEITEM SelectEntry(const std::wstring& path);
    // Ends the picker and waits for the editor.
    void EndPicker(UINT command);

    // Ends the picker with Done and checks that it added a link to `file` below `menu`, which has
    // the given key: on the screen and in the registry.
    void ExpectAdds(const std::wstring& menu, const std::wstring& key, const std::wstring& file,
                    const std::wstring& text);
    // Ends the picker with a command and checks that nothing was added and the editor is still
    // open.
    void ExpectAddsNothing(UINT command = IDOK);
    // Checks that a command opens no picker.
    void ExpectOpensNothing(EditorCommand command);

    HWND picker = nullptr;
    CTreeDriver entries{nullptr};

private:
    // The menu as it was before the picker opened.
    std::wstring m_treeBefore;
    std::wstring m_storeBefore;
};

class FileFixture : public PickFixture
{
protected:
    ~FileFixture() override { Close(); }
    void OpenFiles(const std::wstring& menu = L"Programs") { OpenPicker(CommandAddFile, menu); }
    // Opens the picker and expands the folders of a path one after the other.
    void OpenFilesAt(const std::wstring& path);
    HTREEITEM Expand(const std::wstring& path);

    CDeviceRoot device;
};

// With a launcher-menu process that shows everything.
class LinkFixture : public PickFixture
{
protected:
    LinkFixture() : filter(std::make_unique<CFilterWindow>()) {}
    ~LinkFixture() override { Close(); }
    void OpenLinks(const std::wstring& menu = L"Programs") { OpenPicker(CommandAddLink, menu); }

    CStartMenu start;
    std::unique_ptr<CFilterWindow> filter;
};
