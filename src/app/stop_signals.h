#pragma once

namespace tarnel {

// SIGINT and SIGTERM arrive as a readable descriptor on the main loop, so that stopping runs
// there like any other event. To be called before any thread exists that could take them.
int blockStopSignals();

// Reads the signal that made `descriptor` readable and gives the log line that tells of it.
const char* takeStopSignal(int descriptor);

}  // namespace tarnel
