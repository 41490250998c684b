#include "shell/popover/menu_bar_view.h"

#include <QDateTime>
#include <QGridLayout>
#include <QLocale>
#include <QScrollArea>
#include <cstdio>

#include "platform/localized.h"
#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_texts.h"
#include "shell/popover/popover_widgets.h"
#include "transfer/progress_text.h"

namespace tarnel {

namespace {

constexpr int iconSize = 14;
constexpr int recentRows = 5;

QFrame* separator() {
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setStyleSheet(QStringLiteral("color: rgba(0,0,0,0.12);"));
    return line;
}

QString timeText(TimePoint t) {
    const auto when = QDateTime::fromSecsSinceEpoch(std::chrono::system_clock::to_time_t(t));
    const bool today = when.date() == QDate::currentDate();
    // The month's name in the program's language (QDateTime alone gives English).
    return QLocale().toString(when, today ? QStringLiteral("HH:mm") : QStringLiteral("d MMM HH:mm"));
}

// Shows a row per item of `items` in `layout`, in their order: the row an item's id already has
// is updated in place, an item new here gets one from `make`, and the rows of items gone go.
template <typename Row, typename Item, typename Make>
void updateRows(QBoxLayout* layout, std::unordered_map<Uuid, std::unique_ptr<Row>>& rows,
                const std::vector<Item>& items, Make make) {
    std::vector<QWidget*> order;
    std::unordered_map<Uuid, std::unique_ptr<Row>> kept;
    for (const auto& item : items) {
        auto& row = kept[item.id];
        if (auto known = rows.find(item.id); known != rows.end())
            row = std::move(known->second);
        else
            row = make(item);
        row->update(item);
        order.push_back(row->widget());
    }
    rows = std::move(kept);
    placeInOrder(layout, order);
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
    auto* bannerLayout = new QHBoxLayout(banner_);
    bannerLayout->setContentsMargins(8, 5, 8, 5);
    bannerLine_ = new KeptLine(iconSize, 1, false);
    bannerLayout->addWidget(bannerLine_);
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
    noConnections_ = textLabel(ui("No connections configured"), Tone::secondary);
    connections_->addWidget(noConnections_);
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
    downloads_ = new QVBoxLayout;
    downloads_->setSpacing(3);
    activity_->addLayout(downloads_);
    monitoring_ = textLabel(ui("Monitoring — no transfers in progress"), Tone::secondary, true);
    activity_->addWidget(monitoring_);
    moreDownloading_ = textLabel({}, Tone::secondary, true);
    activity_->addWidget(moreDownloading_);
    for (std::size_t i = 0; i < ActivityPlan::rows; ++i) {
        waitingLines_.push_back(new KeptLine(iconSize, 2, false));
        activity_->addWidget(waitingLines_.back());
    }
    moreWaiting_ = textLabel({}, Tone::secondary, true);
    activity_->addWidget(moreWaiting_);
    for (int i = 0; i < recentRows; ++i) {
        recentLines_.push_back(new KeptLine(0, 3, false));
        recent_->addWidget(recentLines_.back());
    }
    noRecent_ = textLabel(ui("No recent downloads"), Tone::secondary, true);
    recent_->addWidget(noRecent_);
    buildStatistics();
    sections->addStretch();
    scroll->setWidget(content);
    root->addWidget(scroll, 1);

    root->addWidget(separator());
    auto* diskAndNetwork = new QHBoxLayout;
    disk_ = new KeptLine(12, 1, true);
    network_ = new KeptLine(12, 1, true);
    diskAndNetwork->addWidget(disk_);
    diskAndNetwork->addWidget(network_);
    root->addLayout(diskAndNetwork);

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

    timeTexts_.setObjectName(QStringLiteral("timeTexts"));
    timeTexts_.setInterval(timeTextsEvery);
    connect(&timeTexts_, &QTimer::timeout, this, &MenuBarView::refresh);
    refresh();
}

void MenuBarView::showEvent(QShowEvent* event) {
    timeTexts_.start();
    QWidget::showEvent(event);
}

void MenuBarView::hideEvent(QHideEvent* event) {
    timeTexts_.stop();
    QWidget::hideEvent(event);
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

    const auto banner = bannerFor({manager_.isPausedForNetwork()(), manager_.isOnHotspot()(),
                                   manager_.isPausedForDiskSpace()(),
                                   settings_.preventSleepDuringDownloads(),
                                   manager_.isPreventingSleep()()});
    banner_->setVisible(banner.has_value());
    if (!banner) return;
    const QColor tint = toneColor(banner->tone);
    const auto style = QStringLiteral("QFrame#banner { background: rgba(%1,%2,%3,0.13); border-radius: 6px; }")
                           .arg(tint.red()).arg(tint.green()).arg(tint.blue());
    // Setting a style sheet restyles the whole frame, even when it is the same one.
    if (banner_->styleSheet() != style) banner_->setStyleSheet(style);
    bannerLine_->setIcon(banner->icon, banner->tone);
    bannerLine_->text()->setText(qs(banner->text));
    setTone(bannerLine_->text(), banner->tone);
}

void MenuBarView::refreshConnections() {
    const auto& list = manager_.connections()();
    updateRows(connections_, connectionRows_, list, [this](const ConnectionConfig& config) {
        return std::make_unique<ConnectionRow>(config.id, manager_, clock_, callbacks_.onOpenConnection);
    });
    noConnections_->setVisible(list.empty());
}

void MenuBarView::refreshActivity() {
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
    updateRows(downloads_, downloadRows_, plan.downloads,
               [](const DownloadProgress&) { return std::make_unique<DownloadRow>(); });
    monitoring_->setVisible(plan.monitoring());
    moreDownloading_->setVisible(plan.moreDownloading > 0);
    moreDownloading_->setText(qs(localizedCount("+%n more downloading...", plan.moreDownloading)));
    for (std::size_t i = 0; i < waitingLines_.size(); ++i) {
        auto* line = waitingLines_[i];
        line->setVisible(i < plan.waiting.size());
        if (i >= plan.waiting.size()) continue;
        const auto& file = plan.waiting[i];
        const bool settled = file.stableCount >= file.requiredChecks;
        line->setIcon(settled ? "checkmark.circle.fill" : "circle.dotted", settled ? Tone::green : Tone::orange);
        setElidedText(line->text(0), qs(file.name), 170);
        line->text(1)->setText(qs(formatSize(file.size)) + QStringLiteral("  ·  ") +
                               qs(stabilityText(file.isGrowing, file.stableCount, file.requiredChecks)));
    }
    moreWaiting_->setVisible(plan.moreWaiting > 0);
    moreWaiting_->setText(qs(localizedCount("%n waiting for stability", plan.moreWaiting)));
}

void MenuBarView::refreshRecent() {
    std::size_t shown = 0;
    for (const auto& entry : history_.entries()()) {
        if (shown == recentLines_.size()) break;
        if (entry.status != TransferStatus::success) continue;
        auto* line = recentLines_[shown++];
        setElidedText(line->text(0), qs(entry.finalFilename), 190);
        line->text(1)->setText(qs(StatsService::formatBytes(entry.sizeBytes)));
        line->text(2)->setText(timeText(entry.timestamp));
    }
    for (std::size_t i = 0; i < recentLines_.size(); ++i) recentLines_[i]->setVisible(i < shown);
    noRecent_->setVisible(shown == 0);
}

void MenuBarView::buildStatistics() {
    auto line = [this](const char* icon, const QString& label) {
        auto* row = iconTextLine(icon, textLabel(label), std::nullopt, false);
        auto* value = textLabel({}, Tone::secondary);
        row->addWidget(value);
        statistics_->addLayout(row);
        return value;
    };
    today_ = line("calendar", ui("Today"));
    allTime_ = line("arrow.down.to.line", ui("All time"));
    lastActivity_ = textLabel({}, Tone::secondary, true);
    lastActivityLine_ = new QWidget;
    auto* last = iconTextLine("clock", lastActivity_, Tone::secondary, true);
    last->setContentsMargins(0, 0, 0, 0);
    lastActivityLine_->setLayout(last);
    statistics_->addWidget(lastActivityLine_);
}

void MenuBarView::refreshStatistics() {
    today_->setText(qs(stats_.todaySummary()));
    allTime_->setText(qs(stats_.totalSummary()));
    const auto last = stats_.lastActivityText();
    if (last) lastActivity_->setText(ui("Last activity: ") + qs(*last));
    lastActivityLine_->setVisible(last.has_value());
}

void MenuBarView::refreshDiskAndNetwork() {
    const double free = manager_.freeDiskSpaceGB()();
    char figure[32];
    std::snprintf(figure, sizeof figure, "%.1f", free);
    disk_->setIcon(free < 5.0 ? "externaldrive.badge.exclamationmark" : "externaldrive", diskTone(free));
    disk_->text()->setText(QString::fromLatin1(figure) + ui(" GB free"));
    setTone(disk_->text(), diskTone(free));
    const auto& network = manager_.networkType()();
    network_->setIcon(networkIconName(network), Tone::secondary);
    network_->text()->setText(qs(networkText(network)));
    setTone(network_->text(), Tone::secondary);
}

void MenuBarView::refreshButtons() {
    const bool paused = manager_.aggregatePaused()();
    // An icon set again redraws the button: only a changed word brings a new one.
    if (const QString text = paused ? ui("Resume") : ui("Pause"); pauseButton_->text() != text) {
        pauseButton_->setText(text);
        pauseButton_->setIcon(symbolIcon(paused ? "play.fill" : "pause.fill"));
    }
    const bool muted = !settings_.playSoundOnDownload();
    if (const QString text = muted ? ui("Unmute") : ui("Mute"); soundButton_->text() != text) {
        soundButton_->setText(text);
        soundButton_->setIcon(symbolIcon(muted ? "speaker.slash.fill" : "speaker.wave.2.fill"));
    }
}

}  // namespace tarnel
