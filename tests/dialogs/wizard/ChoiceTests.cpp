// Which choice is shown, what "Done" and "Cancel" make of it.
#include "tests/dialogs/wizard/WizardFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

class WizardChoice : public WizardFixture
{
protected:
    // The buttons are as wide as the pictures.
    WizardChoice() { WriteWizardArchive(folder, BothPictures()); }

    void ExpectChosen(int id)
    {
        EXPECT_EQ(id == kClassic, IsChecked(kClassic));
        EXPECT_EQ(id == kProfessional, IsChecked(kProfessional));
    }
};

} // namespace

TEST_F(WizardChoice, DetailedIsProfessional)
{
    StoreType(L"Detailed");
    Open();
    ExpectChosen(kProfessional);
}

TEST_F(WizardChoice, SimpleIsClassic)
{
    StoreType(L"Simple");
    Open();
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, WithoutAStoredTypeIsClassic)
{
    Open();
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, AnEmptyTypeIsClassic)
{
    StoreType(L"");
    Open();
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, AnUnknownTypeIsClassic)
{
    StoreType(L"Detailed2");
    Open();
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, ATypeInLowerCaseIsClassic)
{
    StoreType(L"detailed");
    Open();
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, ATypeThatIsNoTextIsClassic)
{
    registry.SetDword(kTypeKey, L"Type", 1);
    Open();
    ExpectChosen(kClassic);
    End(IDCANCEL);
    EXPECT_EQ(1u, registry.Dword(kTypeKey, L"Type"));
}

TEST_F(WizardChoice, OpeningStoresAnEmptyTypeInAKeyThatLacksOne)
{
    registry.CreateKey(kTypeKey);
    Open();
    ExpectChosen(kClassic);
    End(IDCANCEL);
    EXPECT_EQ(L"", StoredType());
}

TEST_F(WizardChoice, JustOneOfTheTwoIsChosen)
{
    Open();
    Choose(kProfessional);
    ExpectChosen(kProfessional);
    Choose(kClassic);
    ExpectChosen(kClassic);
}

TEST_F(WizardChoice, DoneStoresClassicAsSimple)
{
    Open();
    End(IDOK);
    EXPECT_EQ(L"Simple", StoredType());
}

TEST_F(WizardChoice, DoneStoresProfessionalAsDetailed)
{
    Open();
    Choose(kProfessional);
    End(IDOK);
    EXPECT_EQ(L"Detailed", StoredType());
}

TEST_F(WizardChoice, DoneReplacesAnotherType)
{
    StoreType(L"Detailed");
    Open();
    Choose(kClassic);
    End(IDOK);
    EXPECT_EQ(L"Simple", StoredType());
}

TEST_F(WizardChoice, DoneStoresTheTypeAndNothingElse)
{
    const std::wstring before = registry.Dump(L"SOFTWARE");
    Open();
    End(IDOK);
    const std::wstring screen = L"+\\Orvane 2\\Tav Lumenar\\NowScreen";
    const std::wstring key = screen + L"\\PluginEnvironment";
    EXPECT_EQ((std::vector<std::wstring>{screen, key, key + L"|Type=Simple"}),
              DumpDifference(before, registry.Dump(L"SOFTWARE")));
}

TEST_F(WizardChoice, CancelLeavesTheTypeAsItIs)
{
    StoreType(L"Detailed");
    const std::wstring before = registry.Dump(L"SOFTWARE");
    Open();
    Choose(kClassic);
    End(IDCANCEL);
    EXPECT_EQ(before, registry.Dump(L"SOFTWARE"));
}

TEST_F(WizardChoice, CancelCreatesNoKey)
{
    Open();
    Choose(kProfessional);
    End(IDCANCEL);
    EXPECT_FALSE(registry.KeyExists(kTypeKey));
}

TEST_F(WizardChoice, NothingIsStoredBeforeDone)
{
    Open();
    Choose(kProfessional);
    EXPECT_FALSE(registry.KeyExists(kTypeKey));
}

namespace
{

int g_flushes;
LSTATUS WINAPI CountFlush(HKEY key)
{
    ++g_flushes;
    return RegFlushKey(key);
}
LSTATUS WINAPI RefuseValue(HKEY, const wchar_t*, DWORD, DWORD, const BYTE*, DWORD)
{
    return ERROR_ACCESS_DENIED;
}

} // namespace

TEST_F(WizardChoice, TheStoredTypeIsFlushedOnce)
{
    Open();
    const CImportPatch patch(module->Handle(), "advapi32.dll", "RegFlushKey", CountFlush);
    g_flushes = 0;
    End(IDOK);
    EXPECT_EQ(1, g_flushes);
}

TEST_F(WizardChoice, AFailureToStoreIsNotReported)
{
    Open();
    const CImportPatch patch(module->Handle(), "advapi32.dll", "RegSetValueExW", RefuseValue);
    End(IDOK);
    EXPECT_FALSE(registry.ValueExists(kTypeKey, L"Type"));
}

TEST_F(WizardChoice, IsShownAgainTheNextTime)
{
    Open();
    Choose(kProfessional);
    End(IDOK);
    Open();
    ExpectChosen(kProfessional);
}
