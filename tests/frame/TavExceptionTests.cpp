#include "frame/TavException.h"

#include <gtest/gtest.h>

namespace
{

template <class Function>
HRESULT ThrownBy(Function function)
{
    try
    {
        function();
    }
    catch (const CTavException& exception)
    {
        return exception.Code();
    }
    return S_OK;
}

TEST(TavException, CarriesTheCodeOfABrokenPrecondition)
{
    EXPECT_EQ(static_cast<HRESULT>(0x84000001), ThrownBy(ThrowBroken));
}

TEST(TavException, CarriesTheCodeOfMissingMemory)
{
    EXPECT_EQ(E_OUTOFMEMORY, ThrownBy(ThrowOutOfMemory));
}

TEST(TavException, CarriesTheCodeOfAnInvalidArgument)
{
    EXPECT_EQ(E_INVALIDARG, ThrownBy(ThrowInvalidArgument));
}

TEST(TavException, CarriesTheLastErrorAsAWin32Code)
{
    SetLastError(ERROR_ACCESS_DENIED);
    EXPECT_EQ(static_cast<HRESULT>(0x80070005), ThrownBy(ThrowLastError));
    SetLastError(0x12345);
    EXPECT_EQ(static_cast<HRESULT>(0x80072345), ThrownBy(ThrowLastError));
}

TEST(TavException, CarriesALastErrorOfZeroOrBelowAsItIs)
{
    SetLastError(0x80004005);
    EXPECT_EQ(E_FAIL, ThrownBy(ThrowLastError));
    SetLastError(0);
    HRESULT code = E_FAIL;
    try
    {
        ThrowLastError();
    }
    catch (const CTavException& exception)
    {
        code = exception.Code();
    }
    EXPECT_EQ(0, code);
}

} // namespace
