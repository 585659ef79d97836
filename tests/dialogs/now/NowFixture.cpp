#include "tests/dialogs/now/NowFixture.h"

NowFixture::~NowFixture()
{
    run.reset();
    module.reset();
}

void NowFixture::Call()
{
    if (!module)
        module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->CustomizeNow(owner, 0, 0, 0); });
}

void NowFixture::Open(const std::wstring& title)
{
    Call();
    dialog = run->WaitForDialog(title);
    ASSERT_NE(nullptr, dialog);
    list = GetDlgItem(dialog, kListId);
    ASSERT_NE(nullptr, list);
}

std::wstring NowFixture::LabelOf(int row) const
{
    wchar_t text[2000] = {};
    LVITEMW item = {};
    item.pszText = text;
    item.cchTextMax = 2000;
    ToList(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

Labels NowFixture::AllLabels() const
{
    Labels labels;
    for (int row = 0; row < RowCount(); ++row)
        labels.push_back(LabelOf(row));
    return labels;
}

Labels NowFixture::CheckedLabels() const
{
    Labels labels;
    for (int row = 0; row < RowCount(); ++row)
        if (BoxOf(row) == 2)
            labels.push_back(LabelOf(row));
    return labels;
}

int NowFixture::RowOf(const std::wstring& label) const
{
    for (int row = 0; row < RowCount(); ++row)
        if (LabelOf(row) == label)
            return row;
    ADD_FAILURE() << "no such row: " << label;
    return -1;
}

UINT NowFixture::BoxOf(int row) const
{
    return static_cast<UINT>(
               ToList(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK)) >>
           12;
}

void NowFixture::CheckRow(int row, bool checked) const
{
    LVITEMW item = {};
    item.state = INDEXTOSTATEIMAGEMASK(checked ? 2 : 1);
    item.stateMask = LVIS_STATEIMAGEMASK;
    ToList(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

DWORD NowFixture::DataOf(int row) const
{
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    EXPECT_TRUE(ToList(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    return static_cast<DWORD>(item.lParam);
}

void NowFixture::SetData(int row, DWORD data) const
{
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = static_cast<LPARAM>(data);
    EXPECT_TRUE(ToList(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

bool NowFixture::IsShown(int control) const
{
    return IsWindowVisible(GetDlgItem(dialog, control)) != FALSE;
}

void NowFixture::Done()
{
    PostCommand(dialog, IDOK);
    ExpectEnd(TRUE);
}

void NowFixture::Cancel()
{
    PostCommand(dialog, IDCANCEL);
    ExpectEnd(FALSE);
}

void NowFixture::ExpectEnd(BOOL result)
{
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
    EXPECT_EQ(result, run->Result());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
}

void NowFixture::ExpectThrown(HRESULT code)
{
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_FALSE(run->Result());
    EXPECT_EQ(code, run->ThrownCode());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    EXPECT_EQ(nullptr, run->InnermostDialog());
}
