#include "platform/qt/qt_settings_store.h"

#include "platform/private_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QStringList>
#include <system_error>

namespace tarnel {

namespace {
QString q(const std::string& s) {
    return QString::fromStdString(s);
}
}  // namespace

QtSettingsStore::QtSettingsStore(const std::filesystem::path& file)
    : settings_(QString::fromStdString(file.string()), QSettings::IniFormat) {
    // The file holds passwords: readable by its owner alone, also when an older version made it
    // for all. QSettings replaces it keeping the mode it finds, so it is set once, here.
    namespace fs = std::filesystem;
    makePrivateFolder(file.parent_path());
    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (fd >= 0) {
        ::fchmod(fd, 0600);
        ::close(fd);
    }
}

std::optional<SettingValue> QtSettingsStore::value(const std::string& key) const {
    const QVariant v = settings_.value(q(key));
    if (!v.isValid()) return std::nullopt;
    switch (v.typeId()) {
        case QMetaType::Bool:
            return v.toBool();
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::UInt:
        case QMetaType::ULongLong:
            return static_cast<std::int64_t>(v.toLongLong());
        case QMetaType::Double:
            return v.toDouble();
        case QMetaType::QStringList: {
            std::vector<std::string> out;
            for (const auto& s : v.toStringList()) out.push_back(s.toStdString());
            return out;
        }
        default:
            // The INI form reads every scalar back as text; the typed reads convert it.
            return v.toString().toStdString();
    }
}

void QtSettingsStore::setValue(const std::string& key, const SettingValue& value) {
    QVariant v = std::visit(
        [](const auto& x) -> QVariant {
            using X = std::decay_t<decltype(x)>;
            if constexpr (std::is_same_v<X, std::string>) {
                return q(x);
            } else if constexpr (std::is_same_v<X, std::vector<std::string>>) {
                QStringList list;
                for (const auto& s : x) list << q(s);
                return list;
            } else if constexpr (std::is_same_v<X, std::int64_t>) {
                return QVariant::fromValue(static_cast<qlonglong>(x));
            } else {
                return QVariant::fromValue(x);
            }
        },
        value);
    settings_.setValue(q(key), v);
}

void QtSettingsStore::remove(const std::string& key) {
    settings_.remove(q(key));
}

void QtSettingsStore::flush() {
    settings_.sync();
}

}  // namespace tarnel
