#pragma once

#include <functional>

namespace tarnel {

// One snapshot of the machine's network path: whether it can carry traffic, and over which
// kinds of interface. Several kinds may be in use at once.
struct NetworkPath {
    bool isSatisfied = true;
    bool usesWifi = false;
    bool usesWiredEthernet = false;
    bool usesCellular = false;

    bool operator==(const NetworkPath&) const = default;
};

// Reports the network path: the current one soon after start(), then every change, until
// cancel(). The callback may run on any thread; its receiver hops to the main loop itself.
class NetworkMonitor {
public:
    using Handler = std::function<void(const NetworkPath&)>;

    virtual ~NetworkMonitor() = default;
    virtual void start(Handler onUpdate) = 0;
    // No callback runs after this returns.
    virtual void cancel() = 0;
};

}  // namespace tarnel
