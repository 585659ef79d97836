#include "tests/gallery/support/GalleryDevice.h"

#include "device/Seed.h"
#include "device/WizardPictures.h"
#include "frame/Localizer.h"
#include "tests/dialogs/city/SampleCities.h"
#include "tests/dialogs/wizard/WizardPictures.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

constexpr const char* kEnglish = "en";
// The one language whose file is in a code page; Wine's own code page need not be that one.
constexpr const char* kRussian = "ru";
constexpr UINT kRussianCodePage = 1251;

std::filesystem::path FileOf(const std::string& language)
{
    return std::filesystem::path(TAV_LANGUAGES) / language / "TavLumenar.txt";
}

std::string BytesOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ToUtf16(const std::string& bytes, UINT codePage)
{
    std::wstring text(bytes.size(), L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(codePage, 0, bytes.data(),
                                                        static_cast<int>(bytes.size()), text.data(),
                                                        static_cast<int>(text.size()))));
    return Utf16File(text);
}

void InstallLanguage(const CTempFolder& folder, const std::string& language)
{
    if (language == kEnglish)
        return;
    const std::string bytes = BytesOf(FileOf(language));
    folder.Write(L"TavLumenar.txt",
                 language == kRussian ? ToUtf16(bytes, kRussianCodePage) : bytes);
}

// As large as the device draws them; what they show doesn't matter here.
WizardMembers Pictures()
{
    const std::string picture =
        BitmapFileOf(wizard::kPictureWidth, wizard::kPictureHeight, RGB(90, 140, 160));
    return {{"Classic.bmp", picture}, {"Professional.bmp", picture}};
}

} // namespace

std::vector<std::string> DeviceLanguages()
{
    std::vector<std::string> languages = {kEnglish};
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(TAV_LANGUAGES, error))
        if (std::filesystem::exists(FileOf(entry.path().filename().string()), error))
            languages.push_back(entry.path().filename().string());
    std::sort(languages.begin() + 1, languages.end());
    return languages;
}

CGalleryDevice::CGalleryDevice(const std::string& language) : m_workArea(CTopBar::Height())
{
    m_install.InstallAsArchive(ManyCities(100).Build(), true);
    WriteWizardArchive(m_install, Pictures());
    InstallLanguage(m_install, language);
    seed::WriteRegistry(m_install.Path());
    EXPECT_TRUE(seed::WriteStartMenu(m_startMenu.Path(), L"\\Windows\\Icons.dll"));
    m_files.AddFile(L"\\Windows\\Calculator.exe");
    m_files.AddFile(L"\\My Documents\\Personal\\A rather long name of a document.txt");
    LoadTranslations();
}

void CGalleryDevice::Translate(const std::wstring& entries)
{
    WriteTranslation(m_install, entries);
    LoadTranslations();
}

std::wstring CGalleryDevice::Translated(const wchar_t* text) const
{
    return GetLocalizer().TranslateText(text);
}

std::string LanguageName(const testing::TestParamInfo<std::string>& info)
{
    return info.param;
}
