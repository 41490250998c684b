#include "app/status_command.h"

#include <iostream>
#include <nlohmann/json.hpp>

#include "app/fleet_status.h"
#include "app/instance_channel.h"
#include "app/instance_lock.h"

namespace tarnel {

int runStatusCommand(const AppPaths& paths, bool asJson) {
    // Asked without taking the lock, so that a fleet starting meanwhile is never turned away.
    const auto channel = InstanceLock::channelOfHolder(paths.instanceLockFiles, std::chrono::seconds(5));
    if (!channel) {
        std::cerr << "tarnel: Tarnel is not running on these stores\n";
        return 3;
    }
    const auto answer = InstanceChannel::send(*channel, InstanceRequestKind::status, {},
                                              std::chrono::seconds(10));
    const auto status = nlohmann::json::parse(answer.text, nullptr, false);
    if (!answer.ok || !status.is_object()) {
        std::cerr << "tarnel: " << (answer.ok ? "the running Tarnel gave a status that does not read"
                                              : answer.text)
                  << "\n";
        return 4;
    }
    std::cout << (asJson ? status.dump(2) + "\n" : statusLines(status));
    return statusExitCode(status);
}

}  // namespace tarnel
