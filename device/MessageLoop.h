// The loop that every program of the device runs.
#pragma once

// Handles messages until the program is told to quit; returns its exit code.
int RunMessageLoop();

// Handles what is waiting, so that the windows are painted.
void HandleWaitingMessages();
