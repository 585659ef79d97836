// A device with a city database of two cities, in a registry and an installation folder of its own.
#pragma once

#include <cstdint>
#include <string>

#include "tests/support/RegistrySandbox.h"

class CCityDevice
{
public:
    // "Lisbon" without details in row 0, "Porto" with details that say "PT" in row 1; both in
    // "Portugal".
    static constexpr uint32_t kLisbon = 11;
    static constexpr uint32_t kPorto = 22;

    // Writes the database and registers the folder.
    CCityDevice();
    // Deletes the folder.
    ~CCityDevice();
    CCityDevice(const CCityDevice&) = delete;
    CCityDevice& operator=(const CCityDevice&) = delete;

private:
    CRegistrySandbox m_hive;
    std::wstring m_folder;
};
