#include "tools/citydb/Build.h"

namespace citydb
{

std::string DefaultCountryFile()
{
    return "/usr/share/iso-codes/json/iso_3166-1.json";
}

std::string DefaultZoneFile()
{
    return "/usr/share/zoneinfo/zone.tab";
}

} // namespace citydb
