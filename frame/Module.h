// The module's instance handles: its own, and the one that its resources are taken from.
#pragma once

#include "platform/Win.h"

// The library's own instance, as the system gave it at start-up.
HINSTANCE ModuleInstance();

// The instance that dialog templates are taken from.
HINSTANCE ResourceInstance();

// Stores the own instance; at start-up only.
void SetModuleInstance(HINSTANCE instance);

// Exchanges the resource instance, interlocked.
void SetResourceInstance(HINSTANCE instance);
