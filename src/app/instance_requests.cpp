#include "app/instance_requests.h"

#include "app/connection_import.h"

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

void listenForLaterLaunches(InstanceChannel& channel, LogService& log) {
    if (std::string error; !channel.listen(error))
        log.log(error + "; later launches cannot reach this one", LogLevel::warning);
}

}  // namespace tarnel
