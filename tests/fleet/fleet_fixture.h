#pragma once

#include <map>
#include <memory>
#include <string>

#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "platform/testing/scripted_network_monitor.h"

namespace tarnel::testing {

// The manager over remotes in memory, one server per host name, with the network scripted by
// the test, idle sleep held by `inhibitor` and passwords kept in `keyring`, if any.
struct FleetFixture : EngineFixture {
    std::map<std::string, std::shared_ptr<MemoryServer>> servers;
    std::map<std::string, std::string> loginPasswords;  // host: the password its last remote got
    ScriptedNetworkMonitor monitor;
    SleepInhibitor* inhibitor = nullptr;
    Keyring* keyring = nullptr;

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
                               inhibitor,
                               keyring};
        return std::make_shared<ConnectionsManager>(
            services, [this](const ConnectionConfig& c) -> std::unique_ptr<RemoteService> {
                loginPasswords[c.host] = c.password;
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
