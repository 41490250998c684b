#include "shell/popover/menu_bar_view.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QGridLayout>
#include <QLocale>
#include <QMenu>
#include <QProgressBar>
#include <QScrollArea>
#include <QUrl>
#include <cstdio>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_texts.h"
#include "shell/popover/popover_widgets.h"
#include "shell/popover/sync_indicator.h"
#include "transfer/progress_text.h"

namespace tarnel {

namespace {

constexpr int iconSize = 14;

QFrame* separator() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setStyleSheet(QStringLiteral("color: rgba(0,0,0,0.12);"));
    return line;
}

QHBoxLayout* iconTextLine(const char* icon, const QString& text, std::optional<Tone> tone,
                          bool small) {
    auto* line = new QHBoxLayout;
    line->setSpacing(6);
    line->addWidget(iconLabel(icon, small ? 12 : iconSize, tone));
    line->addWidget(textLabel(text, tone, small));
    line->addStretch();
    return line;
}

QString timeText(TimePoint t) {
    const auto when = QDateTime::fromSecsSinceEpoch(std::chrono::system_clock::to_time_t(t));
    const bool today = when.date() == QDate::currentDate();
    // The month's name in the program's language (QDateTime alone gives English).
    return QLocale().toString(when, today ? QStringLiteral("HH:mm") : QStringLiteral("d MMM HH:mm"));
}

void openFolder(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(qs(folder.string())));
}

QPushButton* commandButton(QPushButton* button, std::function<void()> action) {
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QPushButton::clicked, button, [action] { action(); });
    return button;
}

}  // namespace

MenuBarView::MenuBarView(ConnectionsManager& manager, AppSettings& settings, StatsService& stats,
                         HistoryService& history, const Clock& clock, MenuBarCallbacks callbacks)
    : manager_(manager),
      settings_(settings),
      stats_(stats),
      history_(history),
      clock_(clock),
      callbacks_(std::move(callbacks)) {
    setFixedSize(width, height);
    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(12, 12, 12, 8);
    root->setSpacing(8);

    buildHeader(root);
    banner_ = new QFrame;
    banner_->setObjectName(QStringLiteral("banner"));
    bannerLayout_ = new QHBoxLayout(banner_);
    bannerLayout_->setContentsMargins(8, 5, 8, 5);
    root->addWidget(banner_);
    root->addWidget(separator());

    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget;
    auto* sections = new QVBoxLayout(content);
    sections->setContentsMargins(0, 0, 4, 0);
    sections->setSpacing(4);

    auto* connectionsHeading = new QHBoxLayout;
    connectionsHeading->addWidget(sectionHeading(ui("CONNECTIONS")));
    connectionsHeading->addStretch();
    connectionsHeading->addWidget(flatButton(ui("Add Connection"), "plus.circle", callbacks_.onAddConnection));
    sections->addLayout(connectionsHeading);
    connections_ = new QVBoxLayout;
    connections_->setSpacing(2);
    sections->addLayout(connections_);

    for (auto [heading, layout] :
         {std::pair{UI_TEXT("ACTIVITY"), &activity_}, std::pair{UI_TEXT("RECENT"), &recent_},
          std::pair{UI_TEXT("STATISTICS"), &statistics_}}) {
        sections->addSpacing(6);
        sections->addWidget(sectionHeading(ui(heading)));
        *layout = new QVBoxLayout;
        (*layout)->setSpacing(3);
        sections->addLayout(*layout);
    }
    sections->addStretch();
    scroll->setWidget(content);
    root->addWidget(scroll, 1);

    root->addWidget(separator());
    diskAndNetwork_ = new QHBoxLayout;
    root->addLayout(diskAndNetwork_);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(commandButton(new QPushButton(symbolIcon("arrow.clockwise"), ui("Sync Now")),
                                     [this] { manager_.syncAllNow(); }));
    pauseButton_ = commandButton(new QPushButton, [this] {
        if (manager_.aggregatePaused()())
            manager_.resumeAll();
        else
            manager_.pauseAll();
    });
    buttons->addWidget(pauseButton_);
    soundButton_ = commandButton(new QPushButton, [this] {
        settings_.setPlaySoundOnDownload(!settings_.playSoundOnDownload());
    });
    buttons->addWidget(soundButton_);
    root->addLayout(buttons);

    root->addWidget(separator());
    // Two short lines: one would cut the entries' words.
    auto* footer = new QGridLayout;
    footer->setSpacing(0);
    const std::tuple<const char*, const char*, std::function<void()>&> entries[] = {
        {UI_TEXT("History..."), "clock.arrow.circlepath", callbacks_.onViewHistory},
        {UI_TEXT("Log..."), "doc.text", callbacks_.onViewLog},
        {UI_TEXT("Settings..."), "gear", callbacks_.onSettings},
        {UI_TEXT("About Tarnel"), "info.circle", callbacks_.onAbout},
        {UI_TEXT("Quit"), "xmark.circle", callbacks_.onQuit},
    };
    int index = 0;
    for (const auto& [label, icon, action] : entries) {
        auto* button = flatButton(ui(label), icon, action);
        auto font = button->font();
        font.setPointSizeF(font.pointSizeF() * 0.85);
        button->setFont(font);
        button->setIconSize(QSize(13, 13));
        footer->addWidget(button, index / 3, index % 3, Qt::AlignLeft);
        ++index;
    }
    root->addLayout(footer);
    refresh();
}

void MenuBarView::buildHeader(QBoxLayout* into) {
    auto* header = new QHBoxLayout;
    header->setSpacing(10);
    auto* logo = new QLabel;
    logo->setPixmap(artworkIcon("DropdownLogo").pixmap(QSize(34, 34)));
    header->addWidget(logo);
    auto* titles = new QVBoxLayout;
    titles->setSpacing(0);
    auto* name = new QLabel(QStringLiteral("Tarnel"));
    auto font = name->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    name->setFont(font);
    titles->addWidget(name);
    status_ = textLabel({}, Tone::secondary, true);
    titles->addWidget(status_);
    header->addLayout(titles);
    header->addStretch();
    into->addLayout(header);
}

void MenuBarView::appeared() {
    manager_.markAllRead();
    manager_.refreshFreeDiskSpace();
    refresh();
}

void MenuBarView::refresh() {
    refreshHeader();
    refreshConnections();
    refreshActivity();
    refreshRecent();
    refreshStatistics();
    refreshDiskAndNetwork();
    refreshButtons();
}

void MenuBarView::refreshHeader() {
    int enabled = 0;
    for (const auto& c : manager_.connections()()) enabled += c.enabled ? 1 : 0;
    status_->setText(qs(headerStatusText({manager_.isPausedForDiskSpace()(),
                                          manager_.isPausedForNetwork()(),
                                          manager_.aggregatePaused()(), enabled})));

    clearLayout(bannerLayout_);
    const auto banner = bannerFor({manager_.isPausedForNetwork()(), manager_.isOnHotspot()(),
                                   manager_.isPausedForDiskSpace()(),
                                   settings_.preventSleepDuringDownloads(),
                                   manager_.isPreventingSleep()()});
    banner_->setVisible(banner.has_value());
    if (!banner) return;
    const QColor tint = toneColor(banner->tone);
    banner_->setStyleSheet(QStringLiteral("QFrame#banner { background: rgba(%1,%2,%3,0.13); border-radius: 6px; }")
                               .arg(tint.red()).arg(tint.green()).arg(tint.blue()));
    bannerLayout_->addLayout(iconTextLine(banner->icon, qs(banner->text), banner->tone, false));
}

void MenuBarView::refreshConnections() {
    clearLayout(connections_);
    const auto& list = manager_.connections()();
    if (list.empty()) {
        connections_->addWidget(textLabel(ui("No connections configured"), Tone::secondary));
        return;
    }
    for (const auto& config : list) connections_->addWidget(connectionRow(config));
}

QWidget* MenuBarView::connectionRow(const ConnectionConfig& config) {
    const auto found = manager_.engines().find(config.id);
    const SyncEngine* engine = found == manager_.engines().end() ? nullptr : found->second.get();
    auto* row = new ClickableRow([open = callbacks_.onOpenConnection, id = config.id] {
        if (open) open(id);
    });
    auto* lines = new QVBoxLayout(row);
    lines->setContentsMargins(4, 3, 4, 3);
    lines->setSpacing(1);
    auto* top = new QHBoxLayout;
    top->setSpacing(6);

    auto* power = new QToolButton;
    power->setAutoRaise(true);
    power->setIcon(QIcon(tintedPixmap(symbolIcon(config.enabled ? "power.circle.fill" : "power.circle"),
                                      16, config.enabled ? toneColor(Tone::blue) : toneColor(Tone::secondary),
                                      2.0)));
    power->setToolTip(config.enabled ? ui("Disable connection") : ui("Enable connection"));
    // The record as it is at the click, not as the row was drawn: a password read from the
    // keyring since is in it.
    QObject::connect(power, &QToolButton::clicked, power, [this, id = config.id] {
        for (auto flipped : manager_.connections()())
            if (flipped.id == id) {
                flipped.enabled = !flipped.enabled;
                manager_.updateConnection(flipped);
                return;
            }
    });
    top->addWidget(power);
    top->addWidget(elidedLabel(qs(config.name), 130, true));

    const int downloads = engine ? static_cast<int>(engine->activeDownloads()().size()) : 0;
    if (downloads > 0) {
        auto* badge = new QLabel(QString::number(downloads));
        badge->setAlignment(Qt::AlignCenter);
        badge->setMinimumWidth(18);
        badge->setStyleSheet(QStringLiteral(
            "background: #1a73e8; color: white; border-radius: 8px; padding: 0 5px; font-weight: bold;"));
        top->addWidget(badge);
    }
    top->addStretch();
    std::optional<EngineStatus> status;
    if (engine) status = EngineStatus{engine->connectionState()(), engine->statusText()()};
    auto* word = elidedLabel(qs(connectionStatusWord(config, status)), 100);
    word->setStyleSheet(QStringLiteral("color: %1;").arg(toneColor(Tone::secondary).name()));
    top->addWidget(word);

    auto mode = SyncIndicator::Mode::none;
    if (downloads > 0)
        mode = SyncIndicator::Mode::downloading;
    else if (engine && engine->connectionState()() == ConnectionState::syncing)
        mode = SyncIndicator::Mode::syncing;
    top->addWidget(new SyncIndicator(mode));
    if (config.scheduleEnabled && !config.isWithinSchedule(clock_))
        top->addWidget(iconLabel("clock", iconSize, Tone::secondary));
    if (engine) top->addWidget(folderButton(config));
    lines->addLayout(top);

    auto* details = new QHBoxLayout;
    details->setContentsMargins(26, 0, 0, 0);
    details->addLayout(iconTextLine("arrow.down.to.line",
                                    ui("Simultaneous downloads: ") + QString::number(config.maxConcurrentDownloads),
                                    Tone::secondary, true));
    details->addLayout(iconTextLine("clock", ui("Sync every ") + qs(pollIntervalText(config.pollInterval)),
                                    Tone::secondary, true));
    lines->addLayout(details);
    return row;
}

QWidget* MenuBarView::folderButton(const ConnectionConfig& config) {
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(symbolIcon("folder"));
    const auto folders = manager_.destinationFolders(config.id);
    if (folders.size() < 2) {
        button->setToolTip(ui("Open destination folder"));
        QObject::connect(button, &QToolButton::clicked, button, [folders] {
            if (!folders.empty()) openFolder(folders.front().second);
        });
        return button;
    }
    button->setToolTip(ui("Open destination folders"));
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const QString label = i == 0 ? ui("Open main folder") : qs(folders[i].first);
        auto* action = menu->addAction(symbolIcon("folder"), label);
        QObject::connect(action, &QAction::triggered, menu, [path = folders[i].second] { openFolder(path); });
    }
    button->setMenu(menu);
    return button;
}

void MenuBarView::refreshActivity() {
    clearLayout(activity_);
    std::vector<DownloadProgress> downloads;
    std::vector<TrackedFileSnapshot> waiting;
    for (const auto& config : manager_.connections()()) {
        const auto found = manager_.engines().find(config.id);
        if (!config.enabled || found == manager_.engines().end()) continue;
        const auto& active = found->second->activeDownloads()();
        downloads.insert(downloads.end(), active.begin(), active.end());
        for (const auto& file : found->second->trackedSnapshots()()) {
            // A file on its way down has its download row; it no longer waits.
            const bool downloading = std::any_of(active.begin(), active.end(),
                                                 [&](const auto& d) { return d.fileName == file.name; });
            if (!downloading) waiting.push_back(file);
        }
    }
    const auto plan = planActivity(downloads, waiting);
    if (plan.monitoring()) {
        activity_->addWidget(textLabel(ui("Monitoring — no transfers in progress"), Tone::secondary, true));
        return;
    }
    for (const auto& download : plan.downloads) {
        auto* row = new QHBoxLayout;
        row->addWidget(iconLabel("arrow.down.circle", 16, Tone::blue), 0, Qt::AlignTop);
        auto* text = new QVBoxLayout;
        text->setSpacing(1);
        text->addWidget(elidedLabel(qs(download.fileName), 290, true));
        auto* bar = new QProgressBar;
        bar->setRange(0, 1000);
        bar->setTextVisible(false);
        bar->setFixedHeight(5);
        if (download.totalBytes > 0)
            bar->setValue(static_cast<int>(1000.0 * download.downloadedBytes / download.totalBytes));
        text->addWidget(bar);
        text->addWidget(textLabel(qs(download.connectionName) + QStringLiteral("  ·  ") +
                                      qs(progressPercentText(download)) + QStringLiteral("  ·  ") +
                                      qs(download.speedText()),
                                  Tone::secondary, true));
        row->addLayout(text, 1);
        activity_->addLayout(row);
    }
    if (plan.moreDownloading > 0)
        activity_->addWidget(textLabel(QStringLiteral("+") + QString::number(plan.moreDownloading) +
                                           ui(" more downloading..."),
                                       Tone::secondary, true));
    for (const auto& file : plan.waiting) {
        auto* row = new QHBoxLayout;
        const bool settled = file.stableCount >= file.requiredChecks;
        row->addWidget(iconLabel(settled ? "checkmark.circle.fill" : "circle.dotted", iconSize,
                                 settled ? Tone::green : Tone::orange));
        row->addWidget(elidedLabel(qs(file.name), 170), 1);
        row->addWidget(textLabel(qs(formatSize(file.size)) + QStringLiteral("  ·  ") +
                                     qs(stabilityText(file.isGrowing, file.stableCount, file.requiredChecks)),
                                 Tone::secondary, true));
        activity_->addLayout(row);
    }
    if (plan.moreWaiting > 0)
        activity_->addWidget(textLabel(QString::number(plan.moreWaiting) + ui(" waiting for stability"),
                                       Tone::secondary, true));
}

void MenuBarView::refreshRecent() {
    clearLayout(recent_);
    int shown = 0;
    for (const auto& entry : history_.entries()()) {
        if (entry.status != TransferStatus::success) continue;
        auto* row = new QHBoxLayout;
        row->addWidget(elidedLabel(qs(entry.finalFilename), 190), 1);
        row->addWidget(textLabel(qs(StatsService::formatBytes(entry.sizeBytes)), Tone::secondary, true));
        row->addWidget(textLabel(timeText(entry.timestamp), Tone::secondary, true));
        recent_->addLayout(row);
        if (++shown == 5) break;
    }
    if (shown == 0) recent_->addWidget(textLabel(ui("No recent downloads"), Tone::secondary, true));
}

void MenuBarView::refreshStatistics() {
    clearLayout(statistics_);
    auto line = [this](const char* icon, const QString& label, const std::string& value) {
        auto* row = iconTextLine(icon, label, std::nullopt, false);
        row->addWidget(textLabel(qs(value), Tone::secondary));
        statistics_->addLayout(row);
    };
    line("calendar", ui("Today"), stats_.todaySummary());
    line("arrow.down.to.line", ui("All time"), stats_.totalSummary());
    if (auto last = stats_.lastActivityText())
        statistics_->addLayout(iconTextLine("clock", ui("Last activity: ") + qs(*last), Tone::secondary, true));
}

void MenuBarView::refreshDiskAndNetwork() {
    clearLayout(diskAndNetwork_);
    const double free = manager_.freeDiskSpaceGB()();
    char figure[32];
    std::snprintf(figure, sizeof figure, "%.1f", free);
    diskAndNetwork_->addLayout(iconTextLine(free < 5.0 ? "externaldrive.badge.exclamationmark" : "externaldrive",
                                            QString::fromLatin1(figure) + ui(" GB free"), diskTone(free), true));
    const auto& network = manager_.networkType()();
    diskAndNetwork_->addLayout(iconTextLine(networkIconName(network), qs(networkText(network)), Tone::secondary, true));
}

void MenuBarView::refreshButtons() {
    const bool paused = manager_.aggregatePaused()();
    pauseButton_->setText(paused ? ui("Resume") : ui("Pause"));
    pauseButton_->setIcon(symbolIcon(paused ? "play.fill" : "pause.fill"));
    const bool muted = !settings_.playSoundOnDownload();
    soundButton_->setText(muted ? ui("Unmute") : ui("Mute"));
    soundButton_->setIcon(symbolIcon(muted ? "speaker.slash.fill" : "speaker.wave.2.fill"));
}

}  // namespace tarnel
