#include "shell/popover/connection_row.h"

#include <QBoxLayout>
#include <QDesktopServices>
#include <QUrl>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

namespace {

constexpr int iconSize = 14;
constexpr int nameWidth = 130;
constexpr int wordWidth = 100;

void openFolder(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(qs(folder.string())));
}

}  // namespace

ConnectionRow::ConnectionRow(const Uuid& id, ConnectionsManager& manager, const Clock& clock,
                             const std::function<void(const Uuid&)>& onOpen)
    : KeptRow(new ClickableRow([onOpen, id] {
          if (onOpen) onOpen(id);
      })),
      id_(id),
      manager_(manager),
      clock_(clock),
      power_(new QToolButton),
      name_(elidedLabel({}, nameWidth, true)),
      badge_(new QLabel),
      word_(elidedLabel({}, wordWidth)),
      indicator_(new SyncIndicator(SyncIndicator::Mode::none)),
      outsideSchedule_(iconLabel("clock", iconSize, Tone::secondary)),
      folder_(new QToolButton),
      simultaneous_(textLabel({}, Tone::secondary, true)),
      interval_(textLabel({}, Tone::secondary, true)) {
    auto* lines = new QVBoxLayout(widget());
    lines->setContentsMargins(4, 3, 4, 3);
    lines->setSpacing(1);
    auto* top = new QHBoxLayout;
    top->setSpacing(6);

    power_->setAutoRaise(true);
    // The record as it is at the click, not as the row was drawn: a password read from the
    // keyring since is in it.
    QObject::connect(power_, &QToolButton::clicked, power_, [&manager, id] {
        for (auto flipped : manager.connections()())
            if (flipped.id == id) {
                flipped.enabled = !flipped.enabled;
                manager.updateConnection(flipped);
                return;
            }
    });
    top->addWidget(power_);
    top->addWidget(name_);

    badge_->setAlignment(Qt::AlignCenter);
    badge_->setMinimumWidth(18);
    badge_->setStyleSheet(QStringLiteral(
        "background: #1a73e8; color: white; border-radius: 8px; padding: 0 5px; font-weight: bold;"));
    top->addWidget(badge_);
    top->addStretch();
    word_->setStyleSheet(QStringLiteral("color: %1;").arg(toneColor(Tone::secondary).name()));
    top->addWidget(word_);
    top->addWidget(indicator_);
    top->addWidget(outsideSchedule_);

    folder_->setAutoRaise(true);
    folder_->setIcon(symbolIcon("folder"));
    folder_->setToolTip(ui("Open destination folder"));
    QObject::connect(folder_, &QToolButton::clicked, folder_, [this] {
        if (folders_.size() == 1) openFolder(folders_.front().second);
    });
    top->addWidget(folder_);
    lines->addLayout(top);

    auto* details = new QHBoxLayout;
    details->setContentsMargins(26, 0, 0, 0);
    details->addLayout(iconTextLine("arrow.down.to.line", simultaneous_, Tone::secondary, true));
    details->addLayout(iconTextLine("clock", interval_, Tone::secondary, true));
    lines->addLayout(details);
}

void ConnectionRow::update(const ConnectionConfig& config) {
    const auto found = manager_.engines().find(id_);
    const SyncEngine* engine = found == manager_.engines().end() ? nullptr : found->second.get();

    // An icon set again redraws the button: only a changed state brings a new one.
    if (const QString tip = config.enabled ? ui("Disable connection") : ui("Enable connection");
        power_->toolTip() != tip) {
        power_->setIcon(QIcon(tintedPixmap(symbolIcon(config.enabled ? "power.circle.fill" : "power.circle"),
                                           16, toneColor(config.enabled ? Tone::blue : Tone::secondary), 2.0)));
        power_->setToolTip(tip);
    }
    setElidedText(name_, qs(config.name), nameWidth);

    const int downloads = engine ? static_cast<int>(engine->activeDownloads()().size()) : 0;
    badge_->setText(QString::number(downloads));
    badge_->setVisible(downloads > 0);

    std::optional<EngineStatus> status;
    if (engine) status = EngineStatus{engine->connectionState()(), engine->statusText()()};
    setElidedText(word_, qs(connectionStatusWord(config, status)), wordWidth);

    auto mode = SyncIndicator::Mode::none;
    if (downloads > 0)
        mode = SyncIndicator::Mode::downloading;
    else if (engine && engine->connectionState()() == ConnectionState::syncing)
        mode = SyncIndicator::Mode::syncing;
    indicator_->setMode(mode);
    outsideSchedule_->setVisible(config.scheduleEnabled && !config.isWithinSchedule(clock_));

    folder_->setVisible(engine != nullptr);
    if (engine) updateFolders();

    simultaneous_->setText(ui("Simultaneous downloads: ") + QString::number(config.maxConcurrentDownloads));
    interval_->setText(ui("Sync every ") + qs(pollIntervalText(config.pollInterval)));
}

void ConnectionRow::updateFolders() {
    auto folders = manager_.destinationFolders(id_);
    // A menu made again would close under the pointer.
    if (folders == folders_) return;
    folders_ = std::move(folders);
    if (auto* old = folder_->menu()) {
        folder_->setMenu(nullptr);
        old->deleteLater();
    }
    if (folders_.size() < 2) {
        folder_->setToolTip(ui("Open destination folder"));
        folder_->setPopupMode(QToolButton::DelayedPopup);
        return;
    }
    folder_->setToolTip(ui("Open destination folders"));
    folder_->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(folder_);
    for (std::size_t i = 0; i < folders_.size(); ++i) {
        const QString label = i == 0 ? ui("Open main folder") : qs(folders_[i].first);
        auto* action = menu->addAction(symbolIcon("folder"), label);
        QObject::connect(action, &QAction::triggered, menu, [path = folders_[i].second] { openFolder(path); });
    }
    folder_->setMenu(menu);
}

}  // namespace tarnel
