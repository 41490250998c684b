#pragma once

#include "app/app_paths.h"

namespace tarnel {

// Runs the tray application until the user quits it or `stopSignals` (blockStopSignals())
// becomes readable; returns the exit status. When another instance already runs on the same
// stores, asks it to show its popup and returns 0.
int runTrayApplication(int argc, char** argv, const AppPaths& paths, int stopSignals);

}  // namespace tarnel
