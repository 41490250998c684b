#include "shell/icons/symbol_icon.h"

#include <QFile>
#include <QImage>
#include <QString>
#include <cstring>

namespace tarnel {

namespace {

// Freedesktop names (symbolic variants) for the names the program uses.
struct ThemeName {
    const char* name;
    const char* theme;
};
constexpr ThemeName themeNames[] = {
    {"wifi", "network-wireless-symbolic"},
    {"wifi.slash", "network-wireless-offline-symbolic"},
    {"externaldrive", "drive-harddisk-symbolic"},
    {"plus.circle", "list-add-symbolic"},
    {"plus", "list-add-symbolic"},
    {"minus", "list-remove-symbolic"},
    {"folder", "folder-symbolic"},
    {"arrow.down.to.line", "go-bottom-symbolic"},
    {"arrow.clockwise", "view-refresh-symbolic"},
    {"arrow.2.circlepath", "view-refresh-symbolic"},
    {"calendar", "x-office-calendar-symbolic"},
    {"cable.connector", "network-wired-symbolic"},
    {"antenna.radiowaves.left.and.right", "network-cellular-symbolic"},
    {"pause.fill", "media-playback-pause-symbolic"},
    {"play.fill", "media-playback-start-symbolic"},
    {"speaker.wave.2.fill", "audio-volume-high-symbolic"},
    {"speaker.slash.fill", "audio-volume-muted-symbolic"},
    {"clock.arrow.circlepath", "document-open-recent-symbolic"},
    {"doc.text", "text-x-generic-symbolic"},
    {"info.circle", "help-about-symbolic"},
    {"gear", "emblem-system-symbolic"},
    {"bell", "preferences-system-notifications-symbolic"},
    {"network", "network-workgroup-symbolic"},
    {"exclamationmark.triangle", "dialog-warning-symbolic"},
};

const char* themeNameOf(const char* name) {
    for (const auto& entry : themeNames)
        if (std::strcmp(entry.name, name) == 0) return entry.theme;
    return nullptr;
}

}  // namespace

QIcon symbolIcon(const char* name) {
    QIcon own(QStringLiteral(":/icons/symbols/%1.svg").arg(QLatin1String(name)));
    if (const char* theme = themeNameOf(name); theme && QIcon::hasThemeIcon(QLatin1String(theme)))
        return QIcon::fromTheme(QLatin1String(theme));
    return own;
}

QPixmap tintedPixmap(const QIcon& icon, int size, const QColor& color, qreal devicePixelRatio) {
    const int pixels = qRound(size * devicePixelRatio);
    QImage image = icon.pixmap(QSize(pixels, pixels)).toImage().convertToFormat(QImage::Format_ARGB32);
    // The dark strokes take the colour; the white marks inside filled shapes stay white.
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) == 0 || qGray(line[x]) > 200) continue;
            line[x] = qRgba(color.red(), color.green(), color.blue(), qAlpha(line[x]));
        }
    }
    auto pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon artworkIcon(const char* name) {
    const auto path = QStringLiteral(":/icons/tray/%1.svg").arg(QLatin1String(name));
    if (QFile::exists(path)) return QIcon(path);
    const auto other = QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name));
    return QFile::exists(other) ? QIcon(other) : QIcon();
}

}  // namespace tarnel
