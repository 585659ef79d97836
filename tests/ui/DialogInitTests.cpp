// The records of dialog-init resources, whole and broken. The entries of a real resource are tested
// with the dialog that has one.
#include "ui/DialogInit.h"

#include "frame/Module.h"
#include "platform/Handles.h"
#include "tests/ui/TestDialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using Bytes = std::vector<uint8_t>;

void Append16(Bytes& bytes, unsigned value)
{
    bytes.push_back(static_cast<uint8_t>(value));
    bytes.push_back(static_cast<uint8_t>(value >> 8));
}

Bytes Record(unsigned control, unsigned message, uint32_t length, const std::string& text)
{
    Bytes bytes;
    Append16(bytes, control);
    Append16(bytes, message);
    Append16(bytes, length & 0xFFFF);
    Append16(bytes, length >> 16);
    bytes.insert(bytes.end(), text.begin(), text.end());
    return bytes;
}

Bytes Record(unsigned control, const std::string& text)
{
    return Record(control, 0x0403, static_cast<uint32_t>(text.size()), text);
}

Bytes operator+(Bytes left, const Bytes& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

// The texts of all records, each behind its control's number.
std::string Walk(const Bytes& bytes, int most = 1000)
{
    // A block that ends where the data ends.
    const Bytes exact(bytes);
    std::string seen;
    ForEachDialogInitEntry(exact.data(), exact.size(),
                           [&](const DialogInitEntry& entry)
                           {
                               seen += std::to_string(entry.control) + ":" +
                                       std::string(entry.text, entry.length) + " ";
                               return --most > 0;
                           });
    return seen;
}

} // namespace

TEST(DialogInitRecords, AreReadInOrderUpToTheControlZero)
{
    EXPECT_EQ("7:abc 8:de ",
              Walk(Record(7, "abc") + Record(8, "de") + Bytes{0, 0} + Record(9, "behind")));
}

TEST(DialogInitRecords, ARecordKeepsItsMessage)
{
    const Bytes bytes = Record(7, 0x0180, 1, "x");
    uint16_t message = 0;
    ForEachDialogInitEntry(bytes.data(), bytes.size(),
                           [&](const DialogInitEntry& entry)
                           {
                               message = entry.message;
                               return true;
                           });
    EXPECT_EQ(0x0180, message);
}

TEST(DialogInitRecords, EndWithTheDataWhenTheEndMarkIsMissing)
{
    EXPECT_EQ("7:abc ", Walk(Record(7, "abc")));
    EXPECT_EQ("", Walk(Bytes()));
}

TEST(DialogInitRecords, AnEmptyTextIsARecord)
{
    EXPECT_EQ("7: 8:a ", Walk(Record(7, "") + Record(8, "a")));
}

TEST(DialogInitRecords, ARecordThatIsCutOffIsNotDelivered)
{
    const Bytes whole = Record(7, "abc") + Record(8, "defg");
    for (size_t size = Record(7, "abc").size(); size < whole.size(); ++size)
        EXPECT_EQ("7:abc ", Walk(Bytes(whole.begin(), whole.begin() + static_cast<long>(size))))
            << size;
}

TEST(DialogInitRecords, ALengthBeyondTheDataEndsThem)
{
    for (const uint32_t length : {4u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFF8u, 0xFFFFFFFFu})
        EXPECT_EQ("6:a ", Walk(Record(6, "a") + Record(7, 0x0403, length, "abc"))) << length;
}

TEST(DialogInitRecords, StopWhenTheTakerSaysSo)
{
    EXPECT_EQ("7:abc ", Walk(Record(7, "abc") + Record(8, "de"), 1));
}

namespace
{

int g_adds = 0;

LRESULT CALLBACK RefuseEntries(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != CB_ADDSTRING && message != LB_ADDSTRING)
        return DefWindowProcW(window, message, wParam, lParam);
    ++g_adds;
    return LB_ERR;
}

// A plain window with a control of each number that the test program's resource names.
class DialogInitResource : public testing::Test
{
protected:
    DialogInitResource()
    {
        SetResourceInstance(GetModuleHandleW(nullptr));
        WNDCLASSW info = {};
        info.lpfnWndProc = RefuseEntries;
        info.hInstance = GetModuleHandleW(nullptr);
        info.lpszClassName = L"Refusing";
        RegisterClassW(&info);
        parent.reset(CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                                     nullptr, nullptr));
    }
    HWND Add(const wchar_t* name, int id)
    {
        return CreateWindowExW(0, name, L"", WS_CHILD, 0, 0, 50, 50, parent.get(),
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                               GetModuleHandleW(nullptr), nullptr);
    }
    UniqueWindow parent;
};

} // namespace

TEST_F(DialogInitResource, AddsTheEntriesOfListAndComboBoxes)
{
    const HWND list = Add(L"ListBox", IDC_LIST);
    const HWND combo = Add(L"ComboBox", IDC_COMBO);
    RunDialogInit(parent.get(), IDD_TEST);
    EXPECT_EQ(2, SendMessageW(list, LB_GETCOUNT, 0, 0));
    EXPECT_EQ(2, SendMessageW(combo, CB_GETCOUNT, 0, 0));
    wchar_t text[20] = {};
    SendMessageW(combo, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(L"Blue", text);
    SendMessageW(list, LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(L"Two", text);
}

TEST_F(DialogInitResource, AFailedAddStopsTheRest)
{
    g_adds = 0;
    const HWND list = Add(L"ListBox", IDC_LIST);
    Add(L"Refusing", IDC_COMBO);
    RunDialogInit(parent.get(), IDD_TEST);
    // The entry in front of the refused one is there, those behind it are not.
    EXPECT_EQ(1, SendMessageW(list, LB_GETCOUNT, 0, 0));
    EXPECT_EQ(1, g_adds);
}

TEST_F(DialogInitResource, AMissingResourceIsNoError)
{
    const HWND list = Add(L"ListBox", IDC_LIST);
    RunDialogInit(parent.get(), IDD_PLAIN);
    EXPECT_EQ(0, SendMessageW(list, LB_GETCOUNT, 0, 0));
}
