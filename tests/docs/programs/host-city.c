/* Keeps a city while it runs: the one with the number that it is given. */
#include "tests/docs/programs/Host.h"

#include "include/TavLumenarCityDetails.h"
#include "include/TavLumenarDialogs.h"

static DWORD identifier;

static void LoadMyCity(CITYINFO* city)
{
    ZeroMemory(city, sizeof(*city));
    city->identifier = identifier;
}

static void SaveMyCity(const CITYINFO* city)
{
    printf("city %lu: %ls\n", city->identifier, city->name);
}

static void SetClock(const uint16_t* zone, double latitude, double longitude)
{
    printf("clock: %ls at %.2f, %.2f\n", (const WCHAR*)zone, latitude, longitude);
}

#include "examples/host-city.c"

int wmain(int count, WCHAR** arguments)
{
    identifier = count > 1 ? wcstoul(arguments[1], NULL, 10) : 0;
    OnSelectCity(MakeOwner());
    puts("returned");
    return 0;
}
