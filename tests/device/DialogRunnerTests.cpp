// The report of one dialog's run, with dialogs that show no window.
#include "device/DialogRunner.h"

#include <gtest/gtest.h>

#include "device/Dialogs.h"
#include "device/Keys.h"
#include "frame/TavException.h"
#include "frame/VORegistry.h"
#include "platform/Handles.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

DialogResult Confirm(HWND)
{
    CVORegistry key(HKEY_LOCAL_MACHINE, keys::kProduct, TRUE, FALSE, 0);
    key.SetDWORD(L"Number", 7);
    return {TRUE, L"M\u00FCnchen came back.\n"};
}

DialogResult Cancel(HWND)
{
    return {FALSE, {}};
}

DialogResult Fail(HWND)
{
    throw CTavException(static_cast<HRESULT>(0x84000001));
}

class DialogRunner : public testing::Test
{
protected:
    DialogRunner()
    {
        wchar_t folder[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        m_file = std::wstring(folder) + L"tav-report-" + std::to_wstring(GetCurrentProcessId());
    }

    // The report that a run of `dialog` leaves behind; the outcome is kept.
    std::string ReportOf(DialogResult (*dialog)(HWND))
    {
        const DialogEntry entry = {L"sample", L"Sample", 100, dialog, nullptr};
        m_outcome = RunAndReport(&entry, nullptr, m_file);
        return ReadReport();
    }

    std::string ReadReport() const
    {
        const UniqueFile file(CreateFileW(m_file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                          FILE_FLAG_DELETE_ON_CLOSE, nullptr));
        EXPECT_TRUE(file);
        char bytes[512] = {};
        DWORD length = 0;
        ReadFile(file.get(), bytes, sizeof(bytes), &length, nullptr);
        return std::string(bytes, length);
    }

    CRegistrySandbox m_hive;
    std::wstring m_file;
    DialogOutcome m_outcome = DialogOutcome::Failed;
};

} // namespace

TEST_F(DialogRunner, AConfirmedDialogIsReportedWithItsWordsAndChanges)
{
    m_hive.CreateKey(keys::kProduct);
    EXPECT_EQ("0\nsample returned TRUE: confirmed with Done.\nM\xC3\xBCnchen came back.\n"
              "Changes in the registry:\n"
              "  key \\SOFTWARE\\Orvane 2\\Tav Lumenar, value \"Number\": was absent, now 7\n",
              ReportOf(Confirm));
    EXPECT_EQ(DialogOutcome::Ended, m_outcome);
}

TEST_F(DialogRunner, ACancelledDialogIsReportedAsNotConfirmed)
{
    EXPECT_EQ("0\nsample returned FALSE: not confirmed.\nNothing changed in the registry.\n",
              ReportOf(Cancel));
    EXPECT_EQ(DialogOutcome::Ended, m_outcome);
}

TEST_F(DialogRunner, AFailedDialogIsReportedWithItsError)
{
    EXPECT_EQ("1\nThe dialog reported error 0x84000001.\nNothing changed in the registry.\n",
              ReportOf(Fail));
    EXPECT_EQ(DialogOutcome::Failed, m_outcome);
}

TEST_F(DialogRunner, AnUnknownDialogIsSaidToBeMissing)
{
    EXPECT_EQ(DialogOutcome::NotThere, RunAndReport(nullptr, nullptr, m_file));
    EXPECT_EQ("3\nThere is no dialog of that name.\n", ReadReport());
}
