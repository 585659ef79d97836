/* Prints the pinned entries and those behind them. */
#include "examples/host-pins.c"

int wmain(void)
{
    PrintHomeScreen();
    return 0;
}
