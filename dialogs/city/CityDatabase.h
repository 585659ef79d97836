// The city database that is installed with the shell, loaded for one run of the picker.
#pragma once

#include "dialogs/city/CityImage.h"
#include "platform/Handles.h"

// Owns the memory of the image.
class CCityDatabase
{
public:
    // Reads the database of the installation folder. A missing, unreadable or foreign one leaves no
    // image, silently.
    void Load();

    // Absent before Load and without a database; valid until the object is destroyed.
    const CCityImage& Image() const { return m_image; }

private:
    UniqueLocal m_block;
    CCityImage m_image;
};

// The number of the first city with that identifier; kNoCityRecord when there is none. Throws as
// CCityImage does.
uint32_t FindCity(const CCityImage& image, uint32_t identifier);
