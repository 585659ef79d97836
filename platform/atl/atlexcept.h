// The framework's own exception: raised by its string and array helpers.
#pragma once

#include "atldef.h"

namespace ATL
{

// Carries one HRESULT; thrown by value.
class CAtlException
{
public:
    CAtlException() = default;
    explicit CAtlException(HRESULT result) : m_hr(result) {}
    operator HRESULT() const { return m_hr; }

    HRESULT m_hr = E_FAIL;
};

// Throws CAtlException with the given code.
[[noreturn]] inline void AtlThrow(HRESULT result)
{
    throw CAtlException(result);
}

} // namespace ATL

using ATL::AtlThrow;
using ATL::CAtlException;
