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
// "Website", "Privacy Policy", "Terms of Service" and "Support", in that order.
std::vector<AboutLink> aboutLinks(const ProductInfo& info);

// "About Tarnel": the logo, the name, the version line, the four links and the makers' line.
class AboutView final : public QWidget {
public:
    explicit AboutView(const ProductInfo& info = builtProductInfo());
};

}  // namespace tarnel
