#include "shell/windows/about_view.h"

#include <QDesktopServices>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_widgets.h"
#include "shell/windows/window_parts.h"

namespace tarnel {

namespace {

QWidget* linkRow(const AboutLink& link, QWidget* context) {
    auto* row = new QToolButton;
    row->setAutoRaise(true);
    row->setCursor(Qt::PointingHandCursor);
    row->setFixedHeight(24);
    row->setFixedWidth(220);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(8);
    layout->addWidget(iconLabel(link.icon, 14, Tone::blue));
    auto* title = new QLabel(link.title);
    title->setAttribute(Qt::WA_TransparentForMouseEvents);
    layout->addWidget(title);
    layout->addStretch();
    layout->addWidget(iconLabel("arrow.up.right.square", 12, Tone::secondary));
    row->setAccessibleName(link.title);
    row->setToolTip(link.target.toString());
    QObject::connect(row, &QToolButton::clicked, context,
                     [target = link.target] { QDesktopServices::openUrl(target); });
    return row;
}

}  // namespace

QString versionLine(const ProductInfo& info) {
    const auto version = info.version.empty() ? std::string("1.0.0") : info.version;
    return ui("Tarnel %1 (build %2)").arg(qs(version), qs(info.build));
}

std::vector<AboutLink> aboutLinks(const ProductInfo& info, const std::filesystem::path& logFolder) {
    const auto file = [](const std::filesystem::path& path) {
        return QUrl::fromLocalFile(QString::fromStdString(path.string()));
    };
    std::vector<AboutLink> links;
    std::error_code ignored;
    if (!info.readme.empty() && std::filesystem::is_regular_file(info.readme, ignored))
        links.push_back({ui("Read Me"), "doc.text", file(info.readme)});
    links.push_back({ui("Log Folder"), "folder", file(logFolder)});
    return links;
}

AboutView::AboutView(const std::filesystem::path& logFolder, const ProductInfo& info) {
    makeToolWindow(*this, ui("About Tarnel"));
    setFixedSize(360, 340);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(4);
    auto* logo = new QLabel;
    logo->setPixmap(artworkIcon("DropdownLogo").pixmap(QSize(96, 96)));
    layout->addWidget(logo, 0, Qt::AlignHCenter);

    auto* name = new QLabel(QStringLiteral("Tarnel"));
    auto font = name->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.6);
    name->setFont(font);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    auto* version = textLabel(versionLine(info), Tone::secondary);
    version->setObjectName(QStringLiteral("version"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addSpacing(12);

    for (const auto& link : aboutLinks(info, logFolder))
        layout->addWidget(linkRow(link, this), 0, Qt::AlignHCenter);
    layout->addStretch();
    layout->addWidget(textLabel(ui("Made by the Tarnel developers."), Tone::secondary, true), 0,
                      Qt::AlignHCenter);
}

}  // namespace tarnel
