/* The host of the examples folder as it stands. */
#include "examples/minimal-host/minimal-host.c"
