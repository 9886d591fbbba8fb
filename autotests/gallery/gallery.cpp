// SPDX-License-Identifier: Apache-2.0
#include "autotests/gallery/gallery_dialog.h"
#include "autotests/support/contrast_palettes.h"
#include "utils/screen_sources.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QScreen>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

const contrast_palettes::Palette *chosen = nullptr;

bool choose(const QString &name)
{
    for (const contrast_palettes::Palette &theme : contrast_palettes::themes) {
        if (name == QLatin1StringView(theme.name))
            chosen = &theme;
    }
    ostra::utils::screenSources().highContrastOn = [] { return chosen != nullptr; };
    ostra::utils::screenSources().systemColor = [](int index) {
        return chosen == nullptr ? ostra::utils::desktopColor(index)
                                 : ostra::utils::referenceOfColor(contrast_palettes::color(*chosen, index));
    };
    return chosen != nullptr || name == u"none";
}

// The colours that cover most of it; an indexed image is some tens of kilobytes less for the documentation.
QList<QRgb> commonColors(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QList<QRgb> colors = counts.keys();
    std::sort(colors.begin(), colors.end(), [&](QRgb a, QRgb b) { return counts.value(a) > counts.value(b); });
    return colors.first(qMin<qsizetype>(colors.size(), 64));
}

// As it stands on the screen, translucent parts included.
bool grab(QWidget &dialog, const QString &file)
{
    const QImage image = dialog.screen()->grabWindow(dialog.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    return image.convertToFormat(QImage::Format_Indexed8, commonColors(image)).save(file, "PNG", 1);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(QStringLiteral("Shows a dialog with each widget that the product's stylesheet knows."));
    options.addHelpOption();
    const QCommandLineOption palette(QStringLiteral("palette"),
                                     QStringLiteral("aquatic, desert, dusk, night-sky, or none: no high contrast."),
                                     QStringLiteral("name"), QStringLiteral("none"));
    const QCommandLineOption file(QStringLiteral("grab"), QStringLiteral("Writes a PNG once it is shown, and ends."),
                                  QStringLiteral("file"));
    const QCommandLineOption font(QStringLiteral("font"),
                                  QStringLiteral("Wine draws no text in line edits with the substitute of a font it lacks."),
                                  QStringLiteral("family"));
    options.addOptions({palette, file, font});
    options.process(application);
    if (options.isSet(font))
        QApplication::setFont(QFont(options.value(font), 9));
    if (!choose(options.value(palette))) {
        std::fputs("gallery: unknown palette\n", stderr);
        return 2;
    }
    GalleryDialog dialog;
    dialog.show();
    dialog.activateWindow();
    if (options.isSet(file)) {
        QTimer::singleShot(std::chrono::milliseconds{500}, &dialog,
                           [&] { QApplication::exit(grab(dialog, options.value(file)) ? 0 : 1); });
    }
    return QApplication::exec();
}
