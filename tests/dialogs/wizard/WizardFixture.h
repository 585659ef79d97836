// Opens the install wizard through the export, over an installation folder and a registry of the
// test's own, and works it.
#pragma once

#include "tests/dialogs/wizard/WizardPictures.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/Pixels.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

#include <gtest/gtest.h>

#include <memory>

// Controls, by the numbers that hosts know them by.
constexpr int kClassic = 221;
constexpr int kProfessional = 222;
constexpr int kProfessionalPicture = 223;
constexpr int kClassicPicture = 224;

constexpr const wchar_t* kTypeKey =
    L"SOFTWARE\\Orvane 2\\Tav Lumenar\\NowScreen\\PluginEnvironment";

constexpr COLORREF kClassicColour = RGB(200, 30, 10);
constexpr COLORREF kProfessionalColour = RGB(10, 60, 220);

// The pictures of most tests, in pixels of the bitmaps.
constexpr SIZE kClassicSize = {60, 80};
constexpr SIZE kProfessionalSize = {70, 90};

inline WizardMembers BothPictures()
{
    return {{"Classic.bmp", BitmapFileOf(kClassicSize.cx, kClassicSize.cy, kClassicColour)},
            {"Professional.bmp",
             BitmapFileOf(kProfessionalSize.cx, kProfessionalSize.cy, kProfessionalColour)}};
}

class WizardFixture : public testing::Test
{
protected:
    WizardFixture() { SetInstallFolder(registry, folder); }
    ~WizardFixture() override
    {
        run.reset();
        module.reset();
    }

    // Opens the dialog and waits until it can be worked.
    void Open(const std::wstring& title = L"Tav Lumenar")
    {
        Call();
        dialog = run->WaitForDialog(title);
        ASSERT_NE(nullptr, dialog);
    }
    // Calls the export alone.
    void Call()
    {
        if (!module)
            module = std::make_unique<CModule>();
        run = std::make_unique<CDialogRun>([this](HWND)
                                           { return module->InstallWizard(0, 0, 0, 0); });
    }
    void OpenWithPictures()
    {
        WriteWizardArchive(folder, BothPictures());
        Open();
    }

    // Ends the dialog and checks the export's result.
    void End(UINT command)
    {
        PostCommand(dialog, command);
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_EQ(0, run->ThrownCode());
        EXPECT_EQ(command == IDOK ? TRUE : FALSE, run->Result());
    }

    HWND Control(int id) { return GetDlgItem(dialog, id); }
    bool IsChecked(int id) { return SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    void Choose(int id) { SendMessageW(Control(id), BM_CLICK, 0, 0); }
    // A control's place in the dialog.
    RECT PlaceOf(int id)
    {
        RECT rect = {};
        GetWindowRect(Control(id), &rect);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    HBITMAP ImageOf(int id)
    {
        return reinterpret_cast<HBITMAP>(SendMessageW(Control(id), STM_GETIMAGE, IMAGE_BITMAP, 0));
    }

    void StoreType(const wchar_t* type) { registry.SetText(kTypeKey, L"Type", type); }
    std::wstring StoredType() { return registry.Text(kTypeKey, L"Type"); }

    CTempFolder folder;
    CRegistrySandbox registry;
    std::unique_ptr<CModule> module;
    std::unique_ptr<CDialogRun> run;
    HWND dialog = nullptr;
};

// The middle of a window on the screen.
inline POINT MiddleOf(HWND window)
{
    const RECT rect = RectOf(window);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}
