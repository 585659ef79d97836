#include "tests/device/CityDevice.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "device/Keys.h"
#include "include/TavLumenarCityDetails.h"
#include "platform/Handles.h"

namespace
{

constexpr uint32_t kNone = 0xFFFFFFFF;

// Where everything stands in the image.
constexpr uint32_t kAreaTable = 56;
constexpr uint32_t kDetailsTable = kAreaTable + 8;
constexpr uint32_t kDetailsSize = 176;
constexpr uint32_t kCityTable = kDetailsTable + kDetailsSize;
constexpr uint32_t kCitySize = 20;
constexpr uint32_t kTexts = kCityTable + 2 * kCitySize;
constexpr wchar_t kAllTexts[] = L"Portugal\0Lisbon\0Porto";
constexpr uint32_t kPortugalText = kTexts;
constexpr uint32_t kLisbonText = kTexts + 2 * 9;
constexpr uint32_t kPortoText = kLisbonText + 2 * 7;

void Put(std::vector<uint8_t>& image, std::initializer_list<uint32_t> numbers)
{
    for (const uint32_t number : numbers)
        for (int shift = 0; shift < 32; shift += 8)
            image.push_back(static_cast<uint8_t>(number >> shift));
}

void Put(std::vector<uint8_t>& image, const void* data, size_t size)
{
    const auto* const bytes = static_cast<const uint8_t*>(data);
    image.insert(image.end(), bytes, bytes + size);
}

std::vector<uint8_t> MakeImage()
{
    std::vector<uint8_t> image;
    Put(image, {2, 4});
    Put(image, {kAreaTable, 1, 8});
    Put(image, {0, 0, 8});
    Put(image, {kDetailsTable, 1, kDetailsSize});
    Put(image, {kCityTable, 2, kCitySize});
    Put(image, {1, kPortugalText});
    CITYDETAILS details = {};
    details.version = TAVLUMENAR_CITY_DETAILS_VERSION;
    details.population = 249633;
    details.country[0] = L'P';
    details.country[1] = L'T';
    Put(image, {CCityDevice::kPorto});
    Put(image, &details, sizeof(details));
    Put(image, {CCityDevice::kLisbon, kLisbonText, 0, kNone, kNone});
    Put(image, {CCityDevice::kPorto, kPortoText, 0, kNone, 0});
    Put(image, kAllTexts, sizeof(kAllTexts));
    return image;
}

void WriteBytes(const std::wstring& path, const std::vector<uint8_t>& bytes)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(file);
    DWORD written = 0;
    WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ASSERT_EQ(bytes.size(), written);
}

} // namespace

CCityDevice::CCityDevice()
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    m_folder = std::wstring(folder) + L"tav-cities-" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(m_folder.c_str(), nullptr);
    CreateDirectoryW((m_folder + L"\\CitiesDb.dat").c_str(), nullptr);
    WriteBytes(m_folder + L"\\CitiesDb.dat\\Database.dat", MakeImage());
    m_hive.SetText(keys::kProduct, L"InstallDir", m_folder);
}

CCityDevice::~CCityDevice()
{
    DeleteFileW((m_folder + L"\\CitiesDb.dat\\Database.dat").c_str());
    RemoveDirectoryW((m_folder + L"\\CitiesDb.dat").c_str());
    RemoveDirectoryW(m_folder.c_str());
}
