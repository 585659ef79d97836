// The city that the device's owner lives in, kept between starts: a host keeps SelectCity's record
// and passes it in again the next time.
#pragma once

#include "platform/Win.h"

#include "include/TavLumenarDialogs.h"

// The kept record; all zeros while no city was chosen, or when the stored value is no record.
CITYINFO LoadChosenCity();

// Keeps the record, all 244 bytes as they are. False when the registry refuses.
bool SaveChosenCity(const CITYINFO& city);
