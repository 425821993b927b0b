// Draws the default theme's images into share/themes/default/images.
// The images are committed; run this after changing a drawing:
//   build/bin/themeimages share/themes/default/images
#include "themeimages.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

using namespace themeimages;

namespace themeimages {
// Animated images: GIF writing is not part of Qt's image plug-ins; an animation
// is written by writeGif() (see gifwriter.cpp).
bool writeGif(QString const& file, Image const& image);
} // namespace themeimages

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QDir out(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("share/themes/default/images"));
    if (!out.exists() && !out.mkpath(QStringLiteral(".")))
        return 1;
    int failures = 0;
    ImageTable table;
    addFoundationImages(table);
    addDisplayImages(table);
    addBarImages(table);
    addEditorImages(table);
    addListImages(table);
    addDeviceImages(table);
    addChoiceImages(table);
    addDialogImages(table);
    addSystemImages(table);
    for (auto const& [name, image] : table) {
        if (image.frames > 1) {
            if (!writeGif(out.filePath(name), image)) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(out.filePath(name)));
                ++failures;
            }
            continue;
        }
        QImage img(image.size, QImage::Format_ARGB32_Premultiplied);
        img.fill(Qt::transparent);
        QPainter p(&img);
        p.setRenderHint(QPainter::Antialiasing);
        image.draw(p, QSizeF(image.size));
        p.end();
        if (!img.save(out.filePath(name))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(out.filePath(name)));
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
