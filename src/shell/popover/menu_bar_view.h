#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>

#include "fleet/connections_manager.h"
#include "platform/clock.h"
#include "records/app_settings.h"
#include "records/history_service.h"
#include "records/stats_service.h"
#include "shell/popover/connection_row.h"
#include "shell/popover/download_row.h"

namespace tarnel {

// What the popover's buttons open; an action left empty shows its button disabled.
struct MenuBarCallbacks {
    std::function<void()> onSettings, onViewLog, onViewHistory, onAbout, onQuit, onAddConnection;
    std::function<void(const Uuid&)> onOpenConnection;
};

// The content of the popover: header, banner, connections, activity, recent files, counters,
// disk and network, the bulk commands and the footer. `refresh` redraws it from the objects it
// reads, updating the rows it keeps in place; `appeared` is called each time the popover opens.
// While it is on screen, texts that change with time alone are redrawn every minute.
class MenuBarView final : public QWidget {
public:
    static constexpr int width = 360;
    static constexpr int height = 500;

    MenuBarView(ConnectionsManager& manager, AppSettings& settings, StatsService& stats,
                HistoryService& history, const Clock& clock, MenuBarCallbacks callbacks);

    static constexpr std::chrono::minutes timeTextsEvery{1};

    void appeared();
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildHeader(QBoxLayout* into);
    void refreshHeader();
    void refreshConnections();
    void refreshActivity();
    void refreshRecent();
    void buildStatistics();
    void refreshStatistics();
    void refreshDiskAndNetwork();
    void refreshButtons();

    ConnectionsManager& manager_;
    AppSettings& settings_;
    StatsService& stats_;
    HistoryService& history_;
    const Clock& clock_;
    MenuBarCallbacks callbacks_;

    QLabel* status_ = nullptr;
    QWidget* banner_ = nullptr;
    KeptLine* bannerLine_ = nullptr;
    QVBoxLayout* connections_ = nullptr;
    QLabel* noConnections_ = nullptr;
    std::unordered_map<Uuid, std::unique_ptr<ConnectionRow>> connectionRows_;
    QVBoxLayout* activity_ = nullptr;
    QVBoxLayout* downloads_ = nullptr;  // the rows of `downloadRows_`, at the head of `activity_`
    std::unordered_map<Uuid, std::unique_ptr<DownloadRow>> downloadRows_;
    QLabel* monitoring_ = nullptr;
    QLabel* moreDownloading_ = nullptr;
    std::vector<KeptLine*> waitingLines_;  // as many as the section ever shows, hidden when unused
    QLabel* moreWaiting_ = nullptr;
    QVBoxLayout* recent_ = nullptr;
    std::vector<KeptLine*> recentLines_;
    QLabel* noRecent_ = nullptr;
    QVBoxLayout* statistics_ = nullptr;
    QLabel* today_ = nullptr;
    QLabel* allTime_ = nullptr;
    QLabel* lastActivity_ = nullptr;
    QWidget* lastActivityLine_ = nullptr;  // shown once there is a last activity
    KeptLine* disk_ = nullptr;
    KeptLine* network_ = nullptr;
    QPushButton* pauseButton_ = nullptr;
    QPushButton* soundButton_ = nullptr;
    QTimer timeTexts_{this};
};

}  // namespace tarnel
