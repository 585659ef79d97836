// skin::CSkin: what a dialog constructs to get at one storage, and destroys when it has what it
// needs.
#pragma once

#include "skin/SkinBitmapStorage.h"

namespace skin
{

// Its end closes the storage and deletes every bitmap that was not given away.
class CSkin
{
public:
    CSkin() = default;
    virtual ~CSkin();
    CSkin(const CSkin&) = delete;
    CSkin& operator=(const CSkin&) = delete;

    CSkinBitmapStorage& Storage() { return m_storage; }

private:
    CSkinBitmapStorage m_storage;
};

} // namespace skin
