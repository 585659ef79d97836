#include "skin/Skin.h"

namespace skin
{

CSkin::~CSkin() = default;

} // namespace skin
