#include "app/instance_requests.h"

#include "app/connection_import.h"
#include "app/fleet_status.h"
#include "connections/connection_config_json.h"

namespace tarnel {

InstanceAnswer importRequest(AppServices& services, const std::string& payload) {
    try {
        const auto summary = importConnections(services.manager(), readConnectionImportText(payload));
        services.logService().log(summary);
        return InstanceAnswer{true, summary};
    } catch (const std::exception& e) {
        return InstanceAnswer{false, std::string("Nothing was imported: ") + e.what()};
    }
}

InstanceAnswer statusRequest(AppServices& services) {
    return {true, fleetStatus(services.manager(), services.historyService(), services.statsService(),
                              services.clock())
                      .dump()};
}

void serveRequests(InstanceChannel& channel, AppServices& services) {
    channel.setHandler(InstanceRequestKind::import,
                       [&services](const std::string& payload) { return importRequest(services, payload); });
    channel.setHandler(InstanceRequestKind::status,
                       [&services](const std::string&) { return statusRequest(services); });
}

InstanceAnswer askHolder(const InstanceLock& lock, InstanceRequestKind kind,
                         const std::string& payload) {
    const auto channel = lock.holderChannel(std::chrono::seconds(5));
    if (!channel) return {false, "Tarnel is running on these stores but names no socket to reach it"};
    return InstanceChannel::send(*channel, kind, payload);
}

void listenForLaterLaunches(InstanceChannel& channel, LogService& log) {
    if (std::string error; !channel.listen(error))
        log.log(error + "; later launches cannot reach this one", LogLevel::warning);
}

}  // namespace tarnel
