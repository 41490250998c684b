#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "fleet/connections_manager.h"
#include "platform/clock.h"
#include "records/app_settings.h"
#include "records/history_service.h"
#include "records/stats_service.h"

namespace tarnel {

// What the popover's buttons open; an action left empty shows its button disabled.
struct MenuBarCallbacks {
    std::function<void()> onSettings, onViewLog, onViewHistory, onAbout, onQuit, onAddConnection;
    std::function<void(const Uuid&)> onOpenConnection;
};

// The content of the popover: header, banner, connections, activity, recent files, counters,
// disk and network, the bulk commands and the footer. `refresh` redraws it from the objects it
// reads; `appeared` is called each time the popover opens.
class MenuBarView final : public QWidget {
public:
    static constexpr int width = 360;
    static constexpr int height = 500;

    MenuBarView(ConnectionsManager& manager, AppSettings& settings, StatsService& stats,
                HistoryService& history, const Clock& clock, MenuBarCallbacks callbacks);

    void appeared();
    void refresh();

private:
    void buildHeader(QBoxLayout* into);
    void refreshHeader();
    void refreshConnections();
    void refreshActivity();
    void refreshRecent();
    void refreshStatistics();
    void refreshDiskAndNetwork();
    void refreshButtons();
    QWidget* connectionRow(const ConnectionConfig& config);
    QWidget* folderButton(const ConnectionConfig& config);

    ConnectionsManager& manager_;
    AppSettings& settings_;
    StatsService& stats_;
    HistoryService& history_;
    const Clock& clock_;
    MenuBarCallbacks callbacks_;

    QLabel* status_ = nullptr;
    QWidget* banner_ = nullptr;
    QHBoxLayout* bannerLayout_ = nullptr;
    QVBoxLayout* connections_ = nullptr;
    QVBoxLayout* activity_ = nullptr;
    QVBoxLayout* recent_ = nullptr;
    QVBoxLayout* statistics_ = nullptr;
    QHBoxLayout* diskAndNetwork_ = nullptr;
    QPushButton* pauseButton_ = nullptr;
    QPushButton* soundButton_ = nullptr;
};

}  // namespace tarnel
