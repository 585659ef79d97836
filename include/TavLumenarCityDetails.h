/* What the 172 detail bytes of a city hold in the databases that `citydb` builds.
 *
 * The dialogs hand these bytes through unread; a host reads them from CITYINFO::details when
 * CITYINFO::hasDetails is 1. Little-endian, no padding. See docs/city-database.md.
 */
#ifndef TAVLUMENAR_CITY_DETAILS_H
#define TAVLUMENAR_CITY_DETAILS_H

#include <stdint.h>

#define TAVLUMENAR_CITY_DETAILS_VERSION 1
#define TAVLUMENAR_CITY_POPULATION_UNKNOWN 0xFFFFFFFFu

#pragma pack(push, 1)
typedef struct CITYDETAILS
{
    uint32_t version;      /* 1; a host that reads another number ignores the rest */
    int32_t latitude;      /* millionths of a degree, north positive */
    int32_t longitude;     /* millionths of a degree, east positive */
    uint32_t population;   /* 0xFFFFFFFF when unknown */
    uint16_t country[4];   /* UTF-16: the ISO 3166-1 code of two letters, padded with zeros */
    uint16_t timeZone[48]; /* UTF-16: the IANA zone's name, padded with zeros; empty when unknown */
    uint8_t reserved[52];  /* 0 */
} CITYDETAILS;
#pragma pack(pop)

#endif
