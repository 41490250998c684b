#pragma once

namespace tarnel {

// Runs the tray application until the user quits it; returns the exit status.
int runTrayApplication(int argc, char** argv);

}  // namespace tarnel
