// Places of the install wizard's controls, in device pixels of the dialog's client area.
#pragma once

#include "platform/Win.h"

// A picture and the radio button under it.
struct WizardChoicePlaces
{
    RECT Picture;
    RECT Button;
};

struct WizardPlaces
{
    WizardChoicePlaces Classic;
    WizardChoicePlaces Professional;
};

// Spreads the two pictures over the client width, with equal gaps beside and between them. `places`
// has the controls as they stand: the pictures keep their tops, the buttons their heights.
// `classic` and `professional` are the sizes that the pictures take, 0 x 0 for a missing one;
// `distance` is that of a button from its picture.
WizardPlaces SpreadWizard(const WizardPlaces& places, int clientWidth, SIZE classic,
                          SIZE professional, int distance);
