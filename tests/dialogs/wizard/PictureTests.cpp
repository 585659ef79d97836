// The pictures: both forms of their archive, what is missing or broken, what is on the screen.
#include "tests/dialogs/wizard/WizardFixture.h"

namespace
{

class WizardPicture : public WizardFixture
{
protected:
    void ExpectPicture(int id, SIZE size, COLORREF colour)
    {
        DIBSECTION section = {};
        ASSERT_EQ(static_cast<int>(sizeof(section)),
                  GetObjectW(ImageOf(id), sizeof(section), &section));
        EXPECT_EQ(size.cx, section.dsBm.bmWidth);
        EXPECT_EQ(size.cy, section.dsBm.bmHeight);
        const POINT middle = MiddleOf(Control(id));
        EXPECT_TRUE(TurnsInto(colour, middle.x, middle.y));
    }
    void ExpectBoth()
    {
        ExpectPicture(kClassicPicture, kClassicSize, kClassicColour);
        ExpectPicture(kProfessionalPicture, kProfessionalSize, kProfessionalColour);
    }
    // The dialog works all the same.
    void ExpectUsable()
    {
        End(IDOK);
        EXPECT_EQ(L"Simple", StoredType());
    }
};

// The folder form has to go before the installation folder around it.
class WizardPictureFolder : public WizardPicture
{
protected:
    void Write(const WizardMembers& members)
    {
        pictures = std::make_unique<CWizardFolder>(folder, members);
    }
    ~WizardPictureFolder() override
    {
        run.reset();
        pictures.reset();
    }
    std::unique_ptr<CWizardFolder> pictures;
};

} // namespace

TEST_F(WizardPicture, ComesFromAZipArchive)
{
    OpenWithPictures();
    ExpectBoth();
    ExpectUsable();
}

TEST_F(WizardPictureFolder, ComesFromAFolder)
{
    Write(BothPictures());
    Open();
    ExpectBoth();
    ExpectUsable();
}

TEST_F(WizardPicture, MayBeMissingWithItsArchive)
{
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    EXPECT_EQ(nullptr, ImageOf(kProfessionalPicture));
    ExpectUsable();
}

TEST_F(WizardPicture, TheClassicOneMayBeMissing)
{
    WriteWizardArchive(folder, {BothPictures()[1]});
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    ExpectPicture(kProfessionalPicture, kProfessionalSize, kProfessionalColour);
    ExpectUsable();
}

TEST_F(WizardPictureFolder, TheProfessionalOneMayBeMissing)
{
    Write({BothPictures()[0]});
    Open();
    EXPECT_EQ(nullptr, ImageOf(kProfessionalPicture));
    ExpectPicture(kClassicPicture, kClassicSize, kClassicColour);
    ExpectUsable();
}

TEST_F(WizardPicture, ThatIsNoBitmapStaysEmpty)
{
    WriteWizardArchive(folder, {{"Classic.bmp", std::string(500, '\xFF')},
                                {"Professional.bmp", BothPictures()[1].second.substr(0, 200)}});
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    EXPECT_EQ(nullptr, ImageOf(kProfessionalPicture));
    ExpectUsable();
}

// Its height is negative in the file, but not on the screen.
TEST_F(WizardPicture, WithItsTopRowFirstIsShownLikeAnyOther)
{
    WizardMembers members = BothPictures();
    const auto height = static_cast<uint32_t>(-kClassicSize.cy);
    for (size_t i = 0; i < 4; ++i)
        members[0].second[22 + i] = static_cast<char>(height >> (8 * i));
    WriteWizardArchive(folder, members);
    Open();
    ExpectBoth();
    EXPECT_EQ(Px(kClassicSize.cy), PlaceOf(kClassicPicture).bottom - PlaceOf(kClassicPicture).top);
}

// A million rows that aren't there, and none at all.
TEST_F(WizardPicture, OfAnImpossibleHeightStaysEmpty)
{
    WizardMembers members = BothPictures();
    members[0].second[24] = 0x10;
    members[1].second[22] = 0;
    WriteWizardArchive(folder, members);
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    EXPECT_EQ(nullptr, ImageOf(kProfessionalPicture));
    ExpectUsable();
}

TEST_F(WizardPicture, OfAnArchiveThatIsNoneStaysEmpty)
{
    folder.Write(L"qa_wizard.dat", "no archive at all");
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    ExpectUsable();
}

TEST_F(WizardPicture, TheArchiveIsClosedWhileTheDialogIsOpen)
{
    OpenWithPictures();
    EXPECT_TRUE(DeleteFileW((folder.Path() + L"\\qa_wizard.dat").c_str()));
    ExpectBoth();
}

TEST_F(WizardPicture, ItsBitmapGoesWithTheDialog)
{
    OpenWithPictures();
    const HBITMAP classic = ImageOf(kClassicPicture);
    const HBITMAP professional = ImageOf(kProfessionalPicture);
    EXPECT_EQ(static_cast<DWORD>(OBJ_BITMAP), GetObjectType(classic));
    End(IDCANCEL);
    EXPECT_EQ(0u, GetObjectType(classic));
    EXPECT_EQ(0u, GetObjectType(professional));
}

TEST_F(WizardPicture, ItsControlShowsBitmaps)
{
    Open();
    for (const int id : {kClassicPicture, kProfessionalPicture})
        EXPECT_EQ(SS_BITMAP, GetWindowLongW(Control(id), GWL_STYLE) & SS_TYPEMASK);
}
