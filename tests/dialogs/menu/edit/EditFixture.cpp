#include "tests/dialogs/menu/edit/EditFixture.h"

#include "tests/support/Screen.h"
#include "tests/ui/IconFixture.h"

COLORREF ColourOfIcon(int number)
{
    // One that a bitmap of 16 bits holds exactly.
    const int red = (number - 100) % 32;
    return RGB(red << 3 | red >> 2, 0, 255);
}

// Paths from the drive's root are looked for on this drive.
EditFixture::EditFixture()
{
    SetCurrentDirectoryW(L"C:\\");
}

EditFixture::~EditFixture()
{
    run.reset();
}

void EditFixture::StartProcess(int icons, bool drawsFiles)
{
    process = std::make_unique<CImageProcess>(
        [=](const ImageProcessRequest& request)
        {
            const bool isNumber = request.Field(kKindField) == kDrawNumber;
            const int number = static_cast<int>(request.Field(kNumberField));
            const bool draws = isNumber ? number >= 100 && number < 100 + icons : drawsFiles;
            if (draws)
                FillRectOf(request, isNumber ? ColourOfIcon(number) : kFileColour);
            return LRESULT{draws};
        });
}

void EditFixture::StartRogue(LRESULT answer)
{
    process =
        std::make_unique<CImageProcess>([answer](const ImageProcessRequest&) { return answer; });
}

std::vector<uint32_t> EditFixture::Asked(uint32_t kind, size_t field) const
{
    std::vector<uint32_t> values;
    for (const ImageProcessRequest& request : process->Requests())
        if (request.Field(kKindField) == kind)
            values.push_back(request.Field(field));
    return values;
}

void EditFixture::SetProduct(const std::wstring& path, const wchar_t* name, DWORD value)
{
    const std::wstring key = path.empty() ? kProductMenu : kProductMenu + (L"\\" + path);
    registry.SetDword(key.c_str(), name, value);
}

void EditFixture::OpenWith(EditorCommand command, const std::wstring& path)
{
    if (!dialog)
        Open();
    Select(path);
    PostCommand(dialog, command);
    edit = run->WaitForDialog(L"Edit Item");
    ASSERT_NE(nullptr, edit);
    // What the preview asks for has been asked by now.
    UpdateWindow(Control(kIconId));
}

void EditFixture::OpenChoice()
{
    PostCommand(edit, kChangeId);
    choice = run->WaitForDialog(L"Choose Icon");
    ASSERT_NE(nullptr, choice);
    list = GetDlgItem(choice, kIconListId);
}

void EditFixture::EndChoice(UINT command)
{
    PostCommand(choice, command);
    EXPECT_EQ(edit, run->WaitForDialog(L"Edit Item"));
}

void EditFixture::EndEdit(UINT command)
{
    PostCommand(edit, command);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
}

void EditFixture::Choose(int place)
{
    OpenChoice();
    SelectPlace(place);
    EndChoice(IDOK);
}

void EditFixture::ExpectNothingOpens(EditorCommand command, const std::wstring& path)
{
    if (!dialog)
        Open();
    Select(path);
    ExpectNothingOpens(command);
}

void EditFixture::ExpectNothingOpens(EditorCommand command)
{
    const std::wstring before = registry.CustomDump();
    // A dialog that opens all the same would not return.
    EXPECT_TRUE(SendMessageTimeoutW(dialog, WM_COMMAND, command, 0, SMTO_NORMAL, 2000, nullptr) !=
                0);
    EXPECT_EQ(dialog, run->InnermostDialog());
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(before, registry.CustomDump());
}

void EditFixture::Orphan(const std::wstring& path)
{
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = tree.Find(path);
    item.lParam = 0x7FFFFFF0;
    SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

std::wstring EditFixture::Name() const
{
    const HWND control = Control(kNameId);
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(control)), L'\0');
    // The terminator has its own place behind the text.
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

void EditFixture::ExpectPreview(COLORREF colour) const
{
    const RECT rect = RectOf(Control(kIconId));
    EXPECT_TRUE(TurnsInto(colour, (rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2));
    EXPECT_TRUE(TurnsInto(colour, rect.left, rect.top));
    EXPECT_TRUE(TurnsInto(colour, rect.right - 1, rect.bottom - 1));
}

bool EditFixture::IsPreviewWhite() const
{
    const HWND control = Control(kIconId);
    UpdateWindow(control);
    RECT client = {};
    GetClientRect(control, &client);
    const HDC dc = GetDC(control);
    const RECT drawn = DrawnPart(dc, client.right, client.bottom, kWhite);
    ReleaseDC(control, dc);
    return drawn.right == 0;
}

int EditFixture::PlaceWith(UINT state) const
{
    return static_cast<int>(
        ToList(LVM_GETNEXTITEM, static_cast<WPARAM>(kNothing), static_cast<LPARAM>(state)));
}

void EditFixture::SelectPlace(int place) const
{
    LVITEMW item = {};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    // -1 stands for all.
    ToList(LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    if (place == kNothing)
        return;
    item.state = item.stateMask;
    ToList(LVM_SETITEMSTATE, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&item));
}
