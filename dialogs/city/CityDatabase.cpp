#include "dialogs/city/CityDatabase.h"

#include "frame/InstallFolder.h"
#include "skin/SkinStorage.h"

void CCityDatabase::Load()
{
    m_image = CCityImage();
    m_block.reset();

    skin::CSkinStorage storage;
    if (!storage.Open((InstallFolder() + L"CitiesDb.dat").c_str()))
        return;
    uint32_t size = 0;
    UniqueLocal block(storage.ReadMemberWhole(L"Database.dat", &size));
    const auto* const data = static_cast<const uint8_t*>(block.get());
    if (!CCityImage::IsUsable(data, size))
        return;
    m_block = std::move(block);
    m_image = CCityImage(data, size);
}

uint32_t FindCity(const CCityImage& image, uint32_t identifier)
{
    const uint32_t count = image.CityCount();
    for (uint32_t i = 0; i < count; ++i)
    {
        if (image.City(i).Identifier == identifier)
            return i;
    }
    return kNoCityRecord;
}
