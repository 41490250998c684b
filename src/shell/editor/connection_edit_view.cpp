#include "shell/editor/connection_edit_view.h"

#include <QHBoxLayout>
#include <QMessageBox>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/runtime.h"
#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_texts.h"
#include "shell/editor/extension_filter_view.h"
#include "shell/editor/remote_folder_tree_view.h"
#include "shell/editor/remote_folders.h"
#include "shell/editor/routing_rule_edit_sheet.h"
#include "shell/editor/routing_rule_list.h"
#include "shell/editor/test_steps_view.h"
#include "transfer/ftp_error.h"

// Q_INIT_RESOURCE declares a function of the global namespace.
static void initEditorIcons() {
    Q_INIT_RESOURCE(editor_icons);
}

namespace tarnel {

namespace {

bool askBeforePreset(QWidget* parent, const QString& name) {
    QMessageBox box(QMessageBox::Question, ui("Apply preset?"),
                    ui("This will overwrite the current configuration with the recommended values for ") +
                        name + ui(". Do you want to continue?"),
                    QMessageBox::NoButton, parent);
    auto* go = box.addButton(ui("Continue"), QMessageBox::AcceptRole);
    box.addButton(ui("Cancel"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == go;
}

std::unique_ptr<FTPService> temporaryService(const ConnectionConfig& config,
                                             const FleetServices& services) {
    return std::make_unique<FTPService>(
        config, services.logService,
        std::make_unique<CurlTransferClient>(config, services.knownHostsFile));
}

QString failureText(const std::exception& error) {
    if (const auto* ftp = dynamic_cast<const FTPError*>(&error)) return qs(ftp->errorDescription());
    return QString::fromUtf8(error.what());
}

}  // namespace

ConnectionEditView::ConnectionEditView(ConnectionsManager& manager, ConnectionConfig config,
                                       bool autoFocusName)
    : manager_(manager), config_(std::move(config)), applied_(config_), scroll_(new QScrollArea) {
    initEditorIcons();
    choosePath = filePanels(this);
    confirmPreset = [this](const QString& name) { return askBeforePreset(this, name); };
    editRoutingRule = [this](const RoutingRule& rule) { return openRuleSheet(rule); };

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    form_ = std::make_unique<EditorForm>(config_, column, [this] { edited(); });

    addSectorPicker();
    addConnectionSection();
    addFolderSections();
    addTransferSection();
    addRoutingSections();
    addScheduleSections();
    addSubdirectorySection();
    addRenameSection();
    addAdvancedSection();
    column->addStretch();

    scroll_->setWidget(page);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    outer->addWidget(scroll_, 1);

    steps_ = new TestStepsView;
    steps_->setContentsMargins(12, 0, 12, 0);
    steps_->hide();
    outer->addWidget(steps_);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 6, 12, 6);
    appliedNote_ = new QLabel(ui("Changes applied"));
    appliedNote_->setObjectName(QStringLiteral("Changes applied"));
    appliedNote_->hide();
    buttons->addWidget(appliedNote_);
    buttons->addStretch();
    test_ = new QPushButton(ui("Test Connection"));
    apply_ = new QPushButton(ui("Apply"));
    // Enter in a field must never apply by accident.
    for (auto* button : {test_, apply_}) {
        button->setAutoDefault(false);
        button->setDefault(false);
        buttons->addWidget(button);
    }
    outer->addLayout(buttons);
    connect(test_, &QPushButton::clicked, this, &ConnectionEditView::testConnection);
    connect(apply_, &QPushButton::clicked, this, &ConnectionEditView::apply);

    form_->refresh();
    edited();
    if (autoFocusName) {
        auto* name = control<QLineEdit>("Name");
        QTimer::singleShot(0, name, [name] {
            name->setFocus();
            name->selectAll();
        });
    }
}

ConnectionEditView::~ConnectionEditView() = default;

void ConnectionEditView::edited() {
    apply_->setEnabled(canApply(config_) && hasUnappliedChanges());
    if (hasUnappliedChanges()) appliedNote_->hide();
}

void ConnectionEditView::apply() {
    if (!canApply(config_)) return;
    const auto password =
        passwordTyped_ ? ConnectionsManager::Password::replace : ConnectionsManager::Password::keep;
    applied_ = config_;
    passwordTyped_ = false;
    manager_.updateConnection(config_, password);
    appliedNote_->show();
    edited();
}

void ConnectionEditView::storedRecordChanged(const ConnectionConfig& stored) {
    if (passwordTyped_ || stored.id != config_.id || stored.password == applied_.password) return;
    applied_.password = config_.password = stored.password;
    form_->refresh();
    edited();
}

void ConnectionEditView::addSectorPicker() {
    auto* line = new QHBoxLayout;
    line->setContentsMargins(8, 0, 8, 0);
    line->addWidget(new QLabel(ui("Sector preset")));
    sectorPicker_ = new QComboBox;
    for (auto sector : allSectorPresets) {
        sectorPicker_->addItem(qs(displayName(sector)));
        if (sectorHint(sector) == config_.sectorHint) sectorPickerSelection_ = sector;
    }
    sectorPicker_->setCurrentIndex(static_cast<int>(sectorPickerSelection_));
    line->addWidget(sectorPicker_, 1);
    form_->section(ui("Preset"))->addRow(line);
    connect(sectorPicker_, &QComboBox::activated, this, [this](int index) {
        chooseSector(allSectorPresets[static_cast<std::size_t>(index)]);
    });
}

void ConnectionEditView::chooseSector(SectorPreset sector) {
    const SectorPreset pendingPreset = sector;
    if (!confirmPreset(qs(displayName(pendingPreset)))) {
        sectorPicker_->setCurrentIndex(static_cast<int>(sectorPickerSelection_));
        return;
    }
    applySector(config_, pendingPreset);
    sectorPickerSelection_ = pendingPreset;
    sectorPicker_->setCurrentIndex(static_cast<int>(pendingPreset));
    filters_->showMatchingPreset();
    form_->edited();
}

void ConnectionEditView::chooseFolder(std::string ConnectionConfig::*field,
                                      const std::function<void(const std::filesystem::path&)>& grant) {
    const auto path = choosePath(PathPanel::folder);
    if (!path) return;
    config_.*field = path->string();
    grant(*path);
    form_->edited();
}

std::optional<RoutingRule> ConnectionEditView::openRuleSheet(const RoutingRule& rule) {
    RoutingRuleEditSheet sheet(rule, choosePath, this);
    sheet.onRuleBookmarkSave = [this](const std::filesystem::path& url, const RoutingRule& saved) {
        manager_.updateRuleBookmark(url, saved.id);
    };
    if (sheet.exec() != QDialog::Accepted) return std::nullopt;
    return sheet.rule();
}

void ConnectionEditView::testConnection() {
    if (isTesting_) return;
    isTesting_ = true;
    test_->setEnabled(false);
    steps_->showSteps({});
    steps_->showResult(std::nullopt, false);
    steps_->show();
    spawn(manager_.services().runtime.loop, runTest(config_));
}

Task<void> ConnectionEditView::runTest(ConnectionConfig copy) {
    std::weak_ptr<bool> alive = alive_;
    Runtime& runtime = manager_.services().runtime;
    const FleetServices services = manager_.services();
    std::optional<QString> failure;
    try {
        // The job borrows the frame's locals: the frame waits, suspended, until the job is done.
        co_await onWorker(runtime, [&copy, &services, &alive, &runtime, this] {
            auto service = temporaryService(copy, services);
            return service->testConnectionSteps([alive, &loop = runtime.loop, this](const auto& steps) {
                loop.post([alive, steps, this] {
                    if (!alive.expired()) steps_->showSteps(steps);
                });
            });
        });
    } catch (const std::exception& error) {
        failure = failureText(error);
    }
    if (alive.expired()) co_return;
    isTesting_ = false;
    test_->setEnabled(true);
    steps_->showResult(failure ? ui("Connection failed: ") + *failure : ui("Connection successful"),
                       !failure);
}

void ConnectionEditView::browse(const std::string& id) {
    if (id.empty()) {
        if (isBrowsing_) return;
        isBrowsing_ = true;
        tree_->showError(std::nullopt);
        tree_->showBrowsing(true);
    }
    spawn(manager_.services().runtime.loop, runBrowse(config_, id));
}

Task<void> ConnectionEditView::runBrowse(ConnectionConfig copy, std::string id) {
    std::weak_ptr<bool> alive = alive_;
    const FleetServices services = manager_.services();
    std::vector<RemoteFolderNode> folders;
    std::optional<QString> failure;
    try {
        folders = co_await onWorker(services.runtime, [&copy, &services, &id] {
            auto service = temporaryService(copy, services);
            return listRemoteFolders(*service, id);
        });
    } catch (const std::exception& error) {
        failure = failureText(error);
    }
    if (alive.expired()) co_return;
    if (id.empty()) {
        isBrowsing_ = false;
        tree_->showBrowsing(false);
    }
    if (failure)
        tree_->showError(failure);
    else if (id.empty())
        tree_->setRoots(folders);
    else
        tree_->setChildren(id, folders);
}

}  // namespace tarnel
