// render_icon SVG OUTDIR SIZE...: the application icon as PNGs, OUTDIR/<SIZE>x<SIZE>/apps/<name>.png,
// for the desktops and tools that read only the icon theme's fixed-size folders. Drawn by the
// same SVG renderer the program uses.
#include <QFileInfo>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: render_icon SVG OUTDIR SIZE...\n");
        return 2;
    }
    const QString svg = QString::fromLocal8Bit(argv[1]);
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) {
        std::fprintf(stderr, "render_icon: %s is not an SVG image that can be drawn\n", argv[1]);
        return 1;
    }
    const QString name = QFileInfo(svg).completeBaseName() + QStringLiteral(".png");
    for (int i = 3; i < argc; ++i) {
        const int size = QString::fromLocal8Bit(argv[i]).toInt();
        if (size <= 0) {
            std::fprintf(stderr, "render_icon: %s is not a size in pixels\n", argv[i]);
            return 2;
        }
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter);
        painter.end();
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(QString::fromLocal8Bit(argv[2])).arg(size);
        const QString file = folder + QLatin1Char('/') + name;
        if (!QDir().mkpath(folder) || !image.save(file)) {
            std::fprintf(stderr, "render_icon: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
