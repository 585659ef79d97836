#include "device/ChosenCity.h"

#include "device/Keys.h"
#include "frame/VORegistry.h"

namespace
{

constexpr const wchar_t* kCityName = L"City";

} // namespace

CITYINFO LoadChosenCity()
{
    const CVORegistry key(HKEY_LOCAL_MACHINE, keys::kDevice, FALSE, FALSE, 0);
    CITYINFO city = {};
    DWORD size = sizeof(city);
    if (key.GetBinary(kCityName, &city, &size) && size == sizeof(city))
        return city;
    return {};
}

bool SaveChosenCity(const CITYINFO& city)
{
    CVORegistry key(HKEY_LOCAL_MACHINE, keys::kDevice, TRUE, TRUE, 0);
    return key.SetBinary(kCityName, &city, sizeof(city)) != FALSE;
}
