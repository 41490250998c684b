#pragma once

#include <QTemporaryDir>

#include "app/app_paths.h"

namespace tarnel {

// The program's stores, all inside a temporary folder.
inline AppPaths pathsIn(const QTemporaryDir& dir) {
    const std::filesystem::path root = dir.path().toStdString();
    return {root / "Tarnel.conf",     root / "autostart" / "tarnel.desktop",
            root / "history.json",    root / "partials.json",
            root / "known_hosts",     root / "Tarnel.log",
            {root / "instance.lock"}, root / "instance.socket"};
}

}  // namespace tarnel
