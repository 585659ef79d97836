// String resources with a value in them.
#include "ui/FormattedString.h"

#include "frame/Localizer.h"
#include "frame/Module.h"
#include "tests/support/TranslationFixture.h"
#include "tests/ui/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{

class FormattedStrings : public testing::Test
{
protected:
    FormattedStrings() { SetModuleInstance(GetModuleHandleW(nullptr)); }
    ~FormattedStrings() override { GetLocalizer().Clear(); }
    static void Translate(const std::wstring& translation)
    {
        const CTempFolder folder;
        const std::wstring entry = L"Hello ('%s')!|" + translation + L"\n";
        ASSERT_TRUE(GetLocalizer().LoadFile(WriteTranslation(folder, entry).c_str()));
    }
};

} // namespace

TEST_F(FormattedStrings, TheValueStandsInThePlaceholder)
{
    EXPECT_EQ(L"Hello ('World')!", FormattedString(IDS_GREETING, L"World"));
    EXPECT_EQ(L"Hello ('')!", FormattedString(IDS_GREETING, L""));
}

TEST_F(FormattedStrings, ATranslationKeepsItsOwnPlace)
{
    Translate(L"'%s': hallo");
    EXPECT_EQ(L"'World': hallo", FormattedString(IDS_GREETING, L"World"));
}

TEST_F(FormattedStrings, PlaceholdersInTheValueAreText)
{
    EXPECT_EQ(L"Hello ('%s%n')!", FormattedString(IDS_GREETING, L"%s%n"));
}

TEST_F(FormattedStrings, ATranslationWithOtherPlaceholdersIsNotUsed)
{
    for (const wchar_t* hostile : {L"%n", L"%d", L"%s %s", L"none", L"%1000000d", L"%s %n"})
    {
        Translate(hostile);
        EXPECT_EQ(L"Hello ('World')!", FormattedString(IDS_GREETING, L"World")) << hostile;
    }
}

TEST_F(FormattedStrings, AMissingStringIsEmpty)
{
    EXPECT_EQ(L"", FormattedString(9999, L"World"));
}
