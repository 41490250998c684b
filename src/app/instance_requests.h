#pragma once

#include <string>

#include "app/app_services.h"
#include "app/instance_channel.h"

namespace tarnel {

// What the running instance does with the requests of later launches, the same in the tray
// application and the headless runner.

// Imports the records of `payload` into the running fleet and logs the summary.
InstanceAnswer importRequest(AppServices& services, const std::string& payload);

// Starts serving `channel`; a socket that cannot be made is logged, and the fleet runs on.
void listenForLaterLaunches(InstanceChannel& channel, LogService& log);

}  // namespace tarnel
