#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

constexpr UINT kCommands[] = {CommandEdit,    CommandRemove,  CommandMoveDown, CommandMoveUp,
                              CommandAddMenu, CommandAddLink, CommandAddFile,  CommandOptions};

} // namespace

HMENU MenuOfSoftKey(HWND dialog)
{
    return SoftKeyMenu(dialog, 1);
}

UINT StateOf(HMENU menu, UINT command)
{
    return GetMenuState(menu, command, MF_BYCOMMAND);
}

// The registry is gone by the time that the base would end the dialog.
EditorFixture::~EditorFixture()
{
    Close();
}

void EditorFixture::ExpectThrown(HRESULT code)
{
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_FALSE(run->Result());
    EXPECT_EQ(code, run->ThrownCode());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    EXPECT_FALSE(IsWindow(dialog));
}

bool EditorFixture::IsEnabled(EditorCommand command)
{
    const HMENU menu = MenuOfSoftKey(dialog);
    SendMessageW(dialog, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    const UINT state = StateOf(menu, command);
    EXPECT_NE(static_cast<UINT>(-1), state) << "no such command";
    return (state & (MF_GRAYED | MF_DISABLED)) == 0;
}

std::vector<UINT> EditorFixture::EnabledFor(const std::wstring& path)
{
    Select(path);
    std::vector<UINT> enabled;
    for (const UINT command : kCommands)
        if (IsEnabled(static_cast<EditorCommand>(command)))
            enabled.push_back(command);
    return enabled;
}

HWND EditorFixture::OpenOptions(const std::wstring& path, const std::wstring& title)
{
    Select(path);
    PostCommand(dialog, CommandOptions);
    return run->WaitForDialog(title);
}
