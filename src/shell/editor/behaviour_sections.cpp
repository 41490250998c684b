// The sections of the editor that say what happens to files and when: routing rules and their
// fallback, the schedule, the organisation of folders, subfolders, renaming, advanced options.
#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include "connections/routing_rule.h"
#include "platform/runtime.h"
#include "shell/bridge/qt_text.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/editor_texts.h"
#include "shell/editor/folder_mappings_view.h"
#include "shell/editor/remote_folder_tree_view.h"
#include "shell/editor/routing_rule_list.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

namespace {

QString hourText(int hour) {
    return QString::asprintf("%d:00", hour);
}

}  // namespace

void ConnectionEditView::addRoutingSections() {
    auto& form = *form_;
    form.section(ui("Routing Rules"));
    rules_ = new RoutingRuleList(form, [this](const RoutingRule& rule) { return editRoutingRule(rule); });
    form.row({}, rules_);

    form.section(ui("If No Rule Matches"));
    std::vector<std::pair<QString, FallbackBehavior>> behaviours;
    for (auto b : {FallbackBehavior::useLocalFolder, FallbackBehavior::ignore, FallbackBehavior::useSpecificFolder})
        behaviours.emplace_back(qs(displayText(b)), b);
    form.picker<FallbackBehavior>(UI_TEXT("Behavior"), behaviours, &ConnectionConfig::fallbackBehavior);
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    auto* path = new QLabel;
    path->setTextFormat(Qt::PlainText);
    line->addWidget(path, 1);
    auto* choose = new QPushButton(ui("Choose..."));
    choose->setObjectName(QStringLiteral("Choose fallback folder"));
    choose->setAutoDefault(false);
    line->addWidget(choose);
    form.row({}, holder);
    form.showWhen([](const ConnectionConfig& c) {
        return c.fallbackBehavior == FallbackBehavior::useSpecificFolder;
    });
    form.onRefresh([this, path] {
        path->setText(config_.fallbackPath.empty() ? ui("Not selected") : qs(config_.fallbackPath));
    });
    connect(choose, &QPushButton::clicked, this, [this] {
        chooseFolder(&ConnectionConfig::fallbackPath, [this](const std::filesystem::path& url) {
            manager_.updateFallbackBookmark(url, config_.id);
        });
    });
}

void ConnectionEditView::addScheduleSections() {
    auto& form = *form_;
    form.section(ui("Schedule"));
    form.toggle(UI_TEXT("Connect automatically when Tarnel starts"), &ConnectionConfig::autoConnectOnLaunch);
    form.toggle(UI_TEXT("Sync only during scheduled hours"), &ConnectionConfig::scheduleEnabled);
    const auto scheduled = [](const ConnectionConfig& c) { return c.scheduleEnabled; };

    auto* days = new QWidget;
    auto* dayLine = new QHBoxLayout(days);
    dayLine->setContentsMargins(0, 0, 0, 0);
    dayLine->setSpacing(4);
    const auto labels = dayLabels();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        auto* day = new QToolButton;
        day->setText(labels[i]);
        day->setCheckable(true);
        day->setMinimumWidth(44);
        dayLine->addWidget(day);
        connect(day, &QToolButton::clicked, this, [this, i] {
            config_.scheduleDays.resize(7, true);
            config_.scheduleDays[i] = !config_.scheduleDays[i];
            form_->edited();
        });
        form.onRefresh([this, day, i] {
            day->setChecked(i < config_.scheduleDays.size() && config_.scheduleDays[i]);
        });
    }
    dayLine->addStretch();
    form.row(ui("Days"), days);
    form.showWhen(scheduled);

    auto* from = form.stepper("From", &ConnectionConfig::scheduleStartHour, 0, 23,
                              [](int h) { return ui("From ") + hourText(h); });
    from->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    form.showWhen(scheduled);
    auto* to = form.stepper("To", &ConnectionConfig::scheduleEndHour, 0, 23,
                            [](int h) { return ui("To ") + hourText(h); });
    to->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    form.showWhen(scheduled);

    form.section(ui("Organization"));
    form.toggle(UI_TEXT("Organize by date (YYYY/MM/DD)"), &ConnectionConfig::organizeByDate);
    form.toggle(UI_TEXT("Create subfolder per connection"), &ConnectionConfig::organizeByConnection);
    Clock& clock = manager_.services().runtime.clock;
    form.live([&clock](const ConnectionConfig& c) { return organizationExample(c, clock); });
}

void ConnectionEditView::addSubdirectorySection() {
    auto& form = *form_;
    form.section(ui("Remote Subdirectories"));
    form.toggle(UI_TEXT("Sync subfolders recursively"), &ConnectionConfig::exploreSubdirectories);
    form.note(ui("Includes files from all subfolders on the server. Can be slow with large servers."));
    form.stepper("Max depth: ", &ConnectionConfig::maxDepth, 1, 10,
                 [](int n) { return ui("Max depth: ") + QString::number(n); });
    form.showWhen([](const ConnectionConfig& c) { return c.exploreSubdirectories; });

    tree_ = new RemoteFolderTreeView;
    form.row({}, tree_);
    tree_->onSelectionChanged = [this](const std::vector<std::string>& paths) {
        config_.selectedRemotePaths = paths;
        form_->edited();
    };
    tree_->onExpand = [this](const std::string& id) { browse(id); };
    form.onRefresh([this] {
        if (tree_->selectedPaths() != config_.selectedRemotePaths)
            tree_->setSelectedPaths(config_.selectedRemotePaths);
    });

    std::vector<std::pair<QString, SubdirectoryOrganization>> organizations;
    for (auto o : {SubdirectoryOrganization::mirrorStructure, SubdirectoryOrganization::flatAll,
                   SubdirectoryOrganization::lastLevel, SubdirectoryOrganization::customPerFolder})
        organizations.emplace_back(qs(displayText(o)), o);
    form.picker<SubdirectoryOrganization>(UI_TEXT("Organize downloads"), organizations,
                                          &ConnectionConfig::subdirectoryOrganization);
    form.row({}, new FolderMappingsView(form));
    form.showWhen([](const ConnectionConfig& c) {
        return c.subdirectoryOrganization == SubdirectoryOrganization::customPerFolder &&
               !c.selectedRemotePaths.empty();
    });
    form.toggle(UI_TEXT("Auto-monitor new remote folders"), &ConnectionConfig::autoMonitorNewFolders);
    form.toggle(UI_TEXT("Delete empty remote folders"), &ConnectionConfig::deleteEmptyRemoteFolders);
}

void ConnectionEditView::addRenameSection() {
    auto& form = *form_;
    form.section(ui("Auto-Rename"));
    form.text(UI_TEXT("Pattern (empty = no rename)"), "{date}_{counter}_{original}", &ConnectionConfig::renamePattern);
    form.note(ui("Variables: {original}, {date}, {time}, {counter}, {host}"));
    form.live([](const ConnectionConfig&) { return ui("No rename — original filename is kept"); });
    form.showWhen([](const ConnectionConfig& c) { return c.renamePattern.empty(); });
    form.live([](const ConnectionConfig& c) { return qs(c.renamePattern); }, ui("Pattern:"));
    form.showWhen([](const ConnectionConfig& c) { return !c.renamePattern.empty(); });
    Clock& clock = manager_.services().runtime.clock;
    form.live([&clock](const ConnectionConfig& c) { return renamePreview(c, clock); }, ui("Preview:"))
        ->setObjectName(QStringLiteral("Preview:"));
    form.showWhen([](const ConnectionConfig& c) { return !c.renamePattern.empty(); });
}

void ConnectionEditView::addAdvancedSection() {
    auto& form = *form_;
    auto* header = new QToolButton;
    header->setObjectName(QStringLiteral("Advanced Options"));
    header->setText(ui("Advanced Options"));
    header->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    header->setAutoRaise(true);
    header->setCheckable(true);
    header->setIcon(symbolIcon("chevron.right"));
    form.section({});
    auto* headerBox = form.current()->parentWidget();
    form.row({}, header);

    form.section(ui("Advanced"));
    auto* advanced = form.current()->parentWidget();
    advanced->hide();
    headerBox->setStyleSheet(QStringLiteral("QGroupBox { border: none; margin-top: 0; }"));
    connect(header, &QToolButton::toggled, this, [header, advanced](bool showAdvanced) {
        header->setIcon(symbolIcon(showAdvanced ? "chevron.down" : "chevron.right"));
        advanced->setVisible(showAdvanced);
    });
    form.toggle(UI_TEXT("Run post-download action"), &ConnectionConfig::postActionEnabled);
    form.text(UI_TEXT("Command or script"), "/usr/bin/script.sh {filepath}", &ConnectionConfig::postActionPath);
    form.showWhen([](const ConnectionConfig& c) { return c.postActionEnabled; });
    form.stepper("Max retries: ", &ConnectionConfig::maxRetries, 0, 10,
                 [](int n) { return ui("Max retries: ") + QString::number(n); });
    form.stepper("Max resume attempts: ", &ConnectionConfig::maxResumeAttempts, 0, 10,
                 [](int n) { return ui("Max resume attempts: ") + QString::number(n); });
    form.note(ui("Interrupted downloads resume automatically. Set to 0 to disable."));
    form.toggle(UI_TEXT("Verify checksum (MD5)"), &ConnectionConfig::checksumVerification);
    form.note(ui("Recommended for critical transfers. May double download time."));
    form.toggle(UI_TEXT("Auto-decompress ZIP/GZ"), &ConnectionConfig::autoDecompress);
    form.picker<int>(UI_TEXT("Max download speed"), translatedEntries<int>(bandwidthChoices()),
                     &ConnectionConfig::maxBandwidthKBps);
}

}  // namespace tarnel
