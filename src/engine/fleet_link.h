#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "connections/routing.h"
#include "platform/uuid.h"

namespace tarnel {

// What an engine may ask of the fleet that owns it. The engine holds it weakly: with the fleet
// gone, routing goes on without the chosen folders.
class FleetLink {
public:
    virtual ~FleetLink() = default;
    // The folders a connection's rules route into, by rule id, as far as they are reachable.
    virtual RuleFolders ruleDestinations(const Uuid& connectionId) const = 0;
    // The connection's fallback folder, if reachable.
    virtual std::optional<std::filesystem::path> fallbackDestination(
        const Uuid& connectionId) const = 0;
    // Stores folders that the engine's watch found in the connection's selection.
    virtual void addSelectedRemotePaths(const std::vector<std::string>& paths,
                                        const Uuid& connectionId) = 0;
};

}  // namespace tarnel
