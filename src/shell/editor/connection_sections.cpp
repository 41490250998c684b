// The sections of the editor that say where the connection goes and what it fetches:
// "Connection", "Remote Folder", "Local Folder" and "Sync & Transfer".
#include <QHBoxLayout>
#include <QPushButton>

#include "shell/bridge/qt_text.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/editor_texts.h"
#include "shell/editor/extension_filter_view.h"
#include "shell/editor/remote_folder_tree_view.h"

namespace tarnel {

namespace {

bool isSftp(const ConnectionConfig& c) {
    return c.transferProtocol == TransferProtocol::sftp;
}

// A line of text with a button beside it, as a row of the current section.
QPushButton* buttonRow(EditorForm& form, const QString& label, QWidget* field, const char* button) {
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(field, 1);
    auto* push = new QPushButton(ui(button));
    push->setAutoDefault(false);
    line->addWidget(push);
    form.row(label, holder);
    return push;
}

}  // namespace

void ConnectionEditView::addConnectionSection() {
    auto& form = *form_;
    form.section(ui("Connection"));
    form.text(UI_TEXT("Name"), UI_TEXT("My Camera FTP"), &ConnectionConfig::name);
    form.toggle(UI_TEXT("Enabled"), &ConnectionConfig::enabled);
    form.picker<TransferProtocol>(UI_TEXT("Protocol"),
                                  {{QStringLiteral("FTP"), TransferProtocol::ftp},
                                   {QStringLiteral("SFTP"), TransferProtocol::sftp},
                                   {QStringLiteral("FTPS"), TransferProtocol::ftps}},
                                  &ConnectionConfig::transferProtocol,
                                  [](ConnectionConfig& c) { c.port = defaultPort(c.transferProtocol); });
    form.text(UI_TEXT("Host"), "ftp.example.com", &ConnectionConfig::host);
    form.number(UI_TEXT("Port"), &ConnectionConfig::port, [](const ConnectionConfig& c) { return portProblem(c.port); });
    form.text(UI_TEXT("Username"), nullptr, &ConnectionConfig::username);
    auto* password = form.text(UI_TEXT("Password"), nullptr, &ConnectionConfig::password);
    password->setEchoMode(QLineEdit::Password);
    connect(password, &QLineEdit::textEdited, this, [this] { passwordTyped_ = true; });
    form.picker<bool>(UI_TEXT("FTP Mode"), {{ui("Passive (recommended)"), true}, {ui("Active"), false}},
                      &ConnectionConfig::ftpPassiveMode);
    form.showWhen([](const ConnectionConfig& c) { return !isSftp(c); });
    form.toggle(UI_TEXT("Allow self-signed certificates"), &ConnectionConfig::allowSelfSignedCerts);
    form.showWhen([](const ConnectionConfig& c) { return c.transferProtocol == TransferProtocol::ftps; });
    form.note(ui("Disable SSL verification. Only enable if your server uses a self-signed or expired certificate."));
    form.showWhen([](const ConnectionConfig& c) { return c.transferProtocol == TransferProtocol::ftps; });

    auto* key = form.lineEdit(UI_TEXT("SSH Key Path"), UI_TEXT("Select SSH key (optional)"),
                              &ConnectionConfig::sshKeyPath);
    auto* browseKey = buttonRow(form, ui("SSH Key Path"), key, UI_TEXT("Browse..."));
    form.showWhen(isSftp);
    connect(browseKey, &QPushButton::clicked, this, [this] {
        const auto path = choosePath(PathPanel::sshKey);
        if (!path) return;
        config_.sshKeyPath = path->string();
        // The key file's grant goes under the connection's own key, as the folder's does.
        manager_.bookmarkManager().saveBookmark(*path, config_.id);
        form_->edited();
    });

    form.warning("exclamationmark.triangle.fill",
                 ui("FTP does not encrypt data. For medical records, SFTP is strongly recommended."),
                 [](const ConnectionConfig& c) {
                     return c.sectorHint == "health" && c.transferProtocol == TransferProtocol::ftp;
                 });
}

void ConnectionEditView::addFolderSections() {
    auto& form = *form_;
    form.section(ui("Remote Folder"));
    auto* remote = form.lineEdit(UI_TEXT("Remote path"), "/uploads/photos", &ConnectionConfig::remotePath);
    auto* browseButton =
        buttonRow(form, ui("Remote path"),
                  form.withProblem(remote, [](const ConnectionConfig& c) { return remotePathProblem(c.remotePath); }),
                  "Browse...");
    connect(browseButton, &QPushButton::clicked, this, [this] {
        browse();
        if (tree_) scroll_->ensureWidgetVisible(tree_);
    });

    form.section(ui("Local Folder"));
    auto* local = new QLabel;
    local->setTextFormat(Qt::PlainText);
    local->setObjectName(QStringLiteral("Local Folder"));
    auto* choose = buttonRow(form, {}, local, UI_TEXT("Choose..."));
    choose->setObjectName(QStringLiteral("Choose local folder"));
    form.onRefresh([this, local] {
        local->setText(config_.localPath.empty() ? ui("Not selected") : qs(config_.localPath));
    });
    connect(choose, &QPushButton::clicked, this, [this] {
        chooseFolder(&ConnectionConfig::localPath,
                     [this](const std::filesystem::path& url) { manager_.updateBookmark(url, config_.id); });
    });
    form.warning("exclamationmark.triangle", ui("Re-select folder to grant persistent access"),
                 [this](const ConnectionConfig& c) {
                     return !c.localPath.empty() && !manager_.bookmarkManager().hasBookmark(c.id);
                 });
}

void ConnectionEditView::addTransferSection() {
    auto& form = *form_;
    form.section(ui("Sync & Transfer"));
    form.picker<double>(UI_TEXT("Polling Interval"), translatedEntries<double>(pollIntervalChoices()),
                        &ConnectionConfig::pollInterval);
    form.stepper("Stability checks: ", &ConnectionConfig::requiredStableChecks, 2, 5,
                 [](int n) { return ui("Stability checks: ") + QString::number(n); });
    form.stepper("Simultaneous downloads: ", &ConnectionConfig::maxConcurrentDownloads, 1, 8,
                 [](int n) { return ui("Simultaneous downloads: ") + QString::number(n); });
    form.toggle(UI_TEXT("Delete files from FTP after download"), &ConnectionConfig::deleteAfterDownload);
    form.live([](const ConnectionConfig& c) {
        return c.deleteAfterDownload ? ui("Move mode: files are removed from the server.")
                                     : ui("Copy mode: files stay on the server.");
    });
    form.stepper("Min file size: ", &ConnectionConfig::minFileSize, 0, 104857600,
                 [](int bytes) { return ui("Min file size: ") + minFileSizeText(bytes); }, 1048576);
    filters_ = new ExtensionFilterView(form);
    form.row({}, filters_);
}

}  // namespace tarnel
