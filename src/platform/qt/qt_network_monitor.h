#pragma once

#include <memory>

#include <QObject>

#include "platform/network_monitor.h"

namespace tarnel {

// The network path from QNetworkInformation: its reachability and transport medium. Without a
// backend (no NetworkManager on the system bus) it reports one path that is always online.
class QtNetworkMonitor final : public NetworkMonitor {
public:
    void start(Handler onUpdate) override;
    void cancel() override;

private:
    void report();

    Handler handler_;
    // Carries the signal connections; destroying it ends them.
    std::unique_ptr<QObject> context_;
};

}  // namespace tarnel
