#include "tests/gallery/GalleryFixture.h"

#include "device/TreeInput.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

GalleryFixture::~GalleryFixture()
{
    run.reset();
    module.reset();
}

HWND GalleryFixture::Open(std::function<BOOL(HWND owner)> call)
{
    if (!module)
    {
        // It reads its translations when it is loaded.
        EXPECT_EQ(nullptr, GetModuleHandleW(L"TavLumenarDialogs.dll"));
        module = std::make_unique<CModule>();
    }
    run = std::make_unique<CDialogRun>(std::move(call));
    const HWND dialog = WaitForNext(nullptr);
    EXPECT_EQ(device.Translated(L"Done"), SoftKeyText(dialog, 0));
    return dialog;
}

HWND GalleryFixture::OpenEditor()
{
    return Open([this](HWND owner) { return module->CustomizeMenu(owner, 0, 0, 0); });
}

HWND GalleryFixture::WaitForNext(HWND below)
{
    // By its owner: the dialog below the one below may still take input for a moment.
    const HWND owner = below ? below : run->Owner();
    HWND dialog = nullptr;
    EXPECT_TRUE(WaitUntil(
        [&]
        {
            dialog = run->InnermostDialog();
            return dialog && GetWindow(dialog, GW_OWNER) == owner;
        }))
        << "no dialog opened";
    // One round trip: it is back in its message loop.
    SendMessageW(dialog, WM_NULL, 0, 0);
    return dialog && GetWindow(dialog, GW_OWNER) == owner ? dialog : nullptr;
}

void GalleryFixture::EndBack(HWND dialog, HWND below)
{
    PostCommand(dialog, IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return run->InnermostDialog() == below; }));
    SendMessageW(below, WM_NULL, 0, 0);
}

HWND GalleryFixture::OpenWith(HWND below, UINT command)
{
    PostCommand(below, command);
    return WaitForNext(below);
}

void GalleryFixture::End(HWND dialog)
{
    PostCommand(dialog, IDCANCEL);
    EXPECT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
}

HTREEITEM GalleryFixture::SelectNode(HWND tree, std::initializer_list<int> positions)
{
    HTREEITEM node = treeinput::Root(tree);
    for (const int position : positions)
        node = treeinput::Child(tree, node, position);
    EXPECT_NE(nullptr, node) << "no such node";
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
    return node;
}

void GalleryFixture::ExpandNode(HWND tree, HTREEITEM node)
{
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
}

void GalleryFixture::CloseMenus()
{
    EXPECT_TRUE(WaitUntil(
        [&]
        {
            if (!run->OpenPopup())
                return true;
            PressKey(VK_ESCAPE);
            return WaitUntil([&] { return !run->OpenPopup(); }, 200);
        }));
}
