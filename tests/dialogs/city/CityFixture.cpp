#include "tests/dialogs/city/CityFixture.h"

#include <cstring>

CITYINFO RecordOf(DWORD identifier)
{
    CITYINFO record;
    std::memset(&record, 0x5A, sizeof(record));
    record.identifier = identifier;
    return record;
}

bool operator==(const CITYINFO& left, const CITYINFO& right)
{
    return std::memcmp(&left, &right, sizeof(CITYINFO)) == 0;
}

CityFixture::CityFixture()
{
    SetInstallFolder(registry, folder);
    folder.InstallAsFolder(SampleCities().Build());
}

CityFixture::~CityFixture()
{
    run.reset();
    module.reset();
}

void CityFixture::Call(DWORD identifier)
{
    if (!module)
        module = std::make_unique<CModule>();
    city = before = RecordOf(identifier);
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->SelectCity(owner, &city, 0); });
}

void CityFixture::Open(DWORD identifier)
{
    Call(identifier);
    dialog = run->WaitForDialog(L"Select City");
    ASSERT_NE(nullptr, dialog);
    FindControls();
}

void CityFixture::FindControls()
{
    search = GetDlgItem(dialog, kSearchId);
    list = GetDlgItem(dialog, kListId);
    ASSERT_NE(nullptr, search);
    ASSERT_NE(nullptr, list);
}

void CityFixture::Type(const std::wstring& text) const
{
    SendMessageW(search, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

std::wstring CityFixture::CellText(int row, int column) const
{
    wchar_t text[300] = {};
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 300;
    ToList(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text;
}

Texts CityFixture::Column(int column, int rows) const
{
    Texts texts;
    const int count = rows < 0 ? RowCount() : rows;
    for (int row = 0; row < count; ++row)
        texts.push_back(CellText(row, column));
    return texts;
}

std::vector<int> CityFixture::RowsWith(UINT state) const
{
    std::vector<int> rows;
    for (int row = -1;;)
    {
        row = static_cast<int>(
            ToList(LVM_GETNEXTITEM, static_cast<WPARAM>(row), static_cast<LPARAM>(state)));
        if (row < 0)
            return rows;
        rows.push_back(row);
    }
}

RECT CityFixture::RowRect(int row) const
{
    RECT rect = {};
    rect.left = LVIR_BOUNDS;
    ToList(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return rect;
}

bool CityFixture::IsRowVisible(int row) const
{
    RECT client = {};
    GetClientRect(list, &client);
    const RECT rect = RowRect(row);
    return rect.top >= client.top && rect.bottom <= client.bottom;
}

void CityFixture::Select(int row) const
{
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    ToList(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    ToList(LVM_SETSELECTIONMARK, 0, row);
}

POINT CityFixture::PlaceOf(int row) const
{
    const RECT rect = RowRect(row);
    POINT place = {rect.left + 20, (rect.top + rect.bottom) / 2};
    ClientToScreen(list, &place);
    return place;
}

void CityFixture::Done()
{
    PostCommand(dialog, IDOK);
    ExpectEnd(TRUE);
}

void CityFixture::Cancel()
{
    PostCommand(dialog, IDCANCEL);
    ExpectEnd(FALSE);
}

void CityFixture::ExpectEnd(BOOL result)
{
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
    EXPECT_EQ(result, run->Result());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    EXPECT_TRUE(result || city == before) << "the host's record was touched";
}

void CityFixture::ExpectThrown(HRESULT code)
{
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_FALSE(run->Result());
    EXPECT_EQ(code, run->ThrownCode());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    EXPECT_EQ(nullptr, run->InnermostDialog());
    EXPECT_TRUE(city == before) << "the host's record was touched";
}
