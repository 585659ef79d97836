#include "dialogs/wizard/WizardLayout.h"

namespace
{

WizardChoicePlaces PlaceChoice(const WizardChoicePlaces& places, LONG left, SIZE picture,
                               int distance)
{
    const LONG top = places.Picture.top;
    const LONG buttonTop = top + picture.cy + distance;
    const LONG buttonHeight = places.Button.bottom - places.Button.top;
    return {{left, top, left + picture.cx, top + picture.cy},
            {left, buttonTop, left + picture.cx, buttonTop + buttonHeight}};
}

} // namespace

WizardPlaces SpreadWizard(const WizardPlaces& places, int clientWidth, SIZE classic,
                          SIZE professional, int distance)
{
    const LONG gap = (clientWidth - classic.cx - professional.cx) / 3;
    return {PlaceChoice(places.Classic, gap, classic, distance),
            PlaceChoice(places.Professional, 2 * gap + classic.cx, professional, distance)};
}
