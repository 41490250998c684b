#pragma once

#include <map>
#include <memory>
#include <string>

#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "platform/testing/scripted_network_monitor.h"

namespace tarnel::testing {

// The manager over remotes in memory, one server per host name, with the network scripted by
// the test and idle sleep held by `inhibitor`, if any.
struct FleetFixture : EngineFixture {
    std::map<std::string, std::shared_ptr<MemoryServer>> servers;
    ScriptedNetworkMonitor monitor;
    SleepInhibitor* inhibitor = nullptr;

    std::shared_ptr<ConnectionsManager> makeManager() {
        FleetServices services{runtime,
                               settingsStore,
                               settings,
                               logService,
                               stats,
                               history,
                               notifications,
                               sleepMonitor,
                               soundPlayer,
                               dir / "partials-fleet.json",
                               dir / "known_hosts",
                               &monitor,
                               inhibitor};
        return std::make_shared<ConnectionsManager>(
            services, [this](const ConnectionConfig& c) -> std::unique_ptr<RemoteService> {
                auto& s = servers[c.host];
                if (!s)
                    s = std::make_shared<MemoryServer>();
                return std::make_unique<MemoryRemote>(loop, s);
            });
    }

    ConnectionConfig connection(const std::string& name, const std::string& host) {
        ConnectionConfig c = config;
        c.id = Uuid::random();
        c.name = name;
        c.host = host;
        return c;
    }
};

}  // namespace tarnel::testing
