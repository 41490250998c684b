#include "platform/qt/qt_network_monitor.h"

#include <cstdio>

#include <QNetworkInformation>

namespace tarnel {

namespace {

NetworkPath currentPath(const QNetworkInformation& info) {
    NetworkPath path;
    // A local or site network still carries traffic to servers on it; only a disconnected
    // machine has no path. Unknown reachability counts as online.
    path.isSatisfied = info.reachability() != QNetworkInformation::Reachability::Disconnected;
    switch (info.transportMedium()) {
        case QNetworkInformation::TransportMedium::WiFi:
            path.usesWifi = true;
            break;
        case QNetworkInformation::TransportMedium::Ethernet:
            path.usesWiredEthernet = true;
            break;
        case QNetworkInformation::TransportMedium::Cellular:
            path.usesCellular = true;
            break;
        default:
            break;
    }
    return path;
}

}  // namespace

void QtNetworkMonitor::start(Handler onUpdate) {
    handler_ = std::move(onUpdate);
    // NetworkManager's backend also tells the medium; GLib's only the reachability.
    using Feature = QNetworkInformation::Feature;
    if (!QNetworkInformation::loadBackendByFeatures(Feature::Reachability |
                                                    Feature::TransportMedium) &&
        !QNetworkInformation::loadBackendByFeatures(Feature::Reachability)) {
        std::fprintf(stderr,
                     "Tarnel: no network information backend; the network counts as online\n");
        handler_(NetworkPath{});
        return;
    }
    auto* info = QNetworkInformation::instance();
    context_ = std::make_unique<QObject>();
    QObject::connect(info, &QNetworkInformation::reachabilityChanged, context_.get(),
                     [this] { report(); });
    QObject::connect(info, &QNetworkInformation::transportMediumChanged, context_.get(),
                     [this] { report(); });
    report();
}

void QtNetworkMonitor::cancel() {
    context_.reset();
    handler_ = nullptr;
}

void QtNetworkMonitor::report() {
    if (handler_)
        handler_(currentPath(*QNetworkInformation::instance()));
}

}  // namespace tarnel
