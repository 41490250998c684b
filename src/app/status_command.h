#pragma once

#include "app/app_paths.h"

namespace tarnel {

// `tarnel --status [--json]`: asks the instance running on the stores of `paths` and prints
// its answer. Returns the exit status: 0 all well, 1 a connection in error, 3 no instance runs,
// 4 the instance does not answer.
int runStatusCommand(const AppPaths& paths, bool asJson);

}  // namespace tarnel
