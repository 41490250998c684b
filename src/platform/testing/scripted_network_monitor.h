#pragma once

#include "platform/network_monitor.h"

namespace tarnel {

// A network monitor that reports the paths a test hands it, while it is started.
class ScriptedNetworkMonitor final : public NetworkMonitor {
public:
    void start(Handler onUpdate) override { handler_ = std::move(onUpdate); }
    void cancel() override { handler_ = nullptr; }

    bool isRunning() const { return static_cast<bool>(handler_); }
    // Reports `path` as the system would; nothing when not started or cancelled.
    void deliver(const NetworkPath& path) {
        if (handler_)
            handler_(path);
    }

private:
    Handler handler_;
};

}  // namespace tarnel
