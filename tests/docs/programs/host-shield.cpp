// Opens the city picker behind the shield and prints what came out of it.
#include "tests/docs/programs/Host.h"

#include "examples/host-shield.cpp"

extern "C" int wmain(int count, wchar_t** arguments)
{
    CITYINFO city = {};
    city.identifier = count > 1 ? wcstoul(arguments[1], nullptr, 10) : 0;
    HRESULT failure = S_OK;
    const HWND owner = MakeOwner();
    const BOOL confirmed = SelectCitySafely(owner, &city, &failure);
    printf("result %d, failure %08lX, owner %s\n", confirmed, failure,
           IsWindowEnabled(owner) ? "enabled" : "disabled");
    return 0;
}
