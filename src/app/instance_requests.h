#pragma once

#include <string>

#include "app/app_services.h"
#include "app/instance_channel.h"
#include "app/instance_lock.h"

namespace tarnel {

// What the running instance does with the requests of later launches, the same in the tray
// application and the headless runner.

// Imports the records of `payload` into the running fleet and logs the summary.
InstanceAnswer importRequest(AppServices& services, const std::string& payload);

// The fleet's status document, for `tarnel --status`.
InstanceAnswer statusRequest(AppServices& services);

// The handlers both kinds of instance serve: import and status.
void serveRequests(InstanceChannel& channel, AppServices& services);

// A later launch's request to the instance that holds `lock`, over the channel it serves.
InstanceAnswer askHolder(const InstanceLock& lock, InstanceRequestKind kind,
                         const std::string& payload);

// Starts serving `channel`; a socket that cannot be made is logged, and the fleet runs on.
void listenForLaterLaunches(InstanceChannel& channel, LogService& log);

}  // namespace tarnel
