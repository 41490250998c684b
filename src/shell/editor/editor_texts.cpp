#include "shell/editor/editor_texts.h"

#include <QCoreApplication>
#include <QLocale>

#include "engine/destination.h"
#include "platform/localized.h"
#include "shell/bridge/qt_text.h"

namespace tarnel {

QString minFileSizeText(std::int64_t bytes) {
    if (bytes == 0) return ui("No minimum");
    if (bytes < 1024) return QString::number(bytes) + QStringLiteral(" B");
    if (bytes < 1024 * 1024) return QString::asprintf("%.0f KB", static_cast<double>(bytes) / 1024.0);
    return QString::asprintf("%.1f MB", static_cast<double>(bytes) / 1024.0 / 1024.0);
}

QString fileCountText(int count) {
    return qs(localizedCount("%n file(s)", count));
}

QString foldersSelectedText(std::size_t count) {
    return qs(localizedCount("%n folder(s) selected", static_cast<int>(count)));
}

QString renamePreview(const ConnectionConfig& config, const Clock& clock) {
    return qs(applyRenamePattern(config, "FC04456.jpg", 1, clock));
}

QString organizationExample(const ConnectionConfig& config, const Clock& clock) {
    ConnectionConfig shown = config;
    if (shown.localPath.empty()) shown.localPath.assign(1, '~');
    return ui("Example: ") + qs(baseLocalDestination(shown, std::nullopt, clock)) +
           QStringLiteral("/file.jpg");
}

std::vector<QString> dayLabels() {
    std::vector<QString> labels;
    const QLocale locale;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
        labels.push_back(locale.dayName(day, QLocale::ShortFormat));
    return labels;
}

std::optional<QString> portProblem(int port) {
    if (port >= 1 && port <= 65535) return std::nullopt;
    return ui("Port must be between 1 and 65535");
}

std::optional<QString> remotePathProblem(const std::string& path) {
    for (const unsigned char c : path)
        if (c < 0x20 || c == 0x7f) return ui("Remote path contains a control character");
    return std::nullopt;
}

bool canApply(const ConnectionConfig& config) {
    return !config.host.empty() && !config.localPath.empty() && !portProblem(config.port) &&
           !remotePathProblem(config.remotePath);
}

QColor tagDisplayColor(std::optional<FinderTagColor> color) {
    if (!color) return QColor(0xd1, 0xd1, 0xd6);
    switch (*color) {
        case FinderTagColor::gray:
            return QColor(0x8e, 0x8e, 0x93);
        case FinderTagColor::green:
            return QColor(0x34, 0xc7, 0x59);
        case FinderTagColor::purple:
            return QColor(0xaf, 0x52, 0xde);
        case FinderTagColor::blue:
            return QColor(0x00, 0x7a, 0xff);
        case FinderTagColor::yellow:
            return QColor(0xff, 0xcc, 0x00);
        case FinderTagColor::red:
            return QColor(0xff, 0x3b, 0x30);
        case FinderTagColor::orange:
            return QColor(0xff, 0x95, 0x00);
    }
    return {};
}

const std::vector<std::pair<const char*, double>>& pollIntervalChoices() {
    static const std::vector<std::pair<const char*, double>> choices = {
        {UI_TEXT("2 seconds"), 2.0},   {UI_TEXT("5 seconds"), 5.0},   {UI_TEXT("15 seconds"), 15.0},
        {UI_TEXT("30 seconds"), 30.0}, {UI_TEXT("1 minute"), 60.0},   {UI_TEXT("2 minutes"), 120.0},
        {UI_TEXT("5 minutes"), 300.0}};
    return choices;
}

const std::vector<std::pair<const char*, int>>& bandwidthChoices() {
    static const std::vector<std::pair<const char*, int>> choices = {
        {UI_TEXT("Unlimited"), 0},     {UI_TEXT("128 KB/s"), 128}, {UI_TEXT("256 KB/s"), 256},
        {UI_TEXT("512 KB/s"), 512},    {UI_TEXT("1 MB/s"), 1024},  {UI_TEXT("2 MB/s"), 2048},
        {UI_TEXT("5 MB/s"), 5120},     {UI_TEXT("10 MB/s"), 10240}, {UI_TEXT("20 MB/s"), 20480},
        {UI_TEXT("50 MB/s"), 51200}};
    return choices;
}

}  // namespace tarnel
