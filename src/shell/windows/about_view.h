#pragma once

#include <QString>
#include <QUrl>
#include <QWidget>
#include <vector>

#include "shell/windows/product_info.h"

namespace tarnel {

// "Tarnel 1.2.0 (build 7)"; a build without a version reads "1.0.0".
QString versionLine(const ProductInfo& info);

struct AboutLink {
    QString title;
    const char* icon;
    QUrl target;
};
// What is there to open on this machine: the installed "Read Me" (none where the program runs
// from its build) and the "Log Folder".
std::vector<AboutLink> aboutLinks(const ProductInfo& info, const std::filesystem::path& logFolder);

// "About Tarnel": the logo, the name, the version line, the links and the makers' line.
class AboutView final : public QWidget {
public:
    explicit AboutView(const std::filesystem::path& logFolder,
                       const ProductInfo& info = builtProductInfo());
};

}  // namespace tarnel
