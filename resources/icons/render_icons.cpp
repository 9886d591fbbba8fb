// SPDX-License-Identifier: Apache-2.0
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>

#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <numbers>

namespace {

constexpr int iconSide = 128; // the largest size on a screen: 20 at twice the scale on a display that doubles it, rounded up
constexpr int frameCount = 24;
constexpr int barCount = 7;
constexpr double fieldHeight = 160;
constexpr double dot = 24;

bool renderIcon(const QDir &folder, const QString &file)
{
    QImageReader reader(folder.filePath(file));
    reader.setScaledSize({iconSide, iconSide});
    return reader.read().save(folder.filePath(QString(file).replace(QStringLiteral(".svg"), QStringLiteral(".png"))));
}

// Two waves of different length run through the bars; both are back where they began after the last frame.
double barHeight(int bar, int frame)
{
    const double turn = 2.0 * std::numbers::pi * frame / frameCount;
    const double slow = std::sin(turn + bar * 1.1);
    const double quick = std::sin(2.0 * turn - bar * 1.9);
    return dot + (fieldHeight - dot) * (0.5 + 0.3 * slow + 0.2 * quick);
}

bool renderBars(const QByteArray &pattern, const QString &file, const std::function<double(int)> &height)
{
    QByteArray drawing = pattern;
    for (int bar = 0; bar < barCount; ++bar) {
        const double value = height(bar);
        drawing.replace("@h" + QByteArray::number(bar) + "@", QByteArray::number(value, 'f', 1));
        drawing.replace("@y" + QByteArray::number(bar) + "@", QByteArray::number((fieldHeight - value) / 2.0, 'f', 1));
    }
    return QImage::fromData(drawing, "svg").save(file);
}

bool renderAll(const QDir &folder, const QDir &frames)
{
    bool isDone = true;
    for (const QString &file : folder.entryList({QStringLiteral("*.svg")}))
        isDone = renderIcon(folder, file) && isDone;
    QFile bars(folder.filePath(QStringLiteral("sound_bars.svg.in")));
    isDone = bars.open(QIODevice::ReadOnly) && isDone;
    const QByteArray pattern = bars.readAll();
    isDone = renderBars(pattern, folder.filePath(QStringLiteral("idle.png")), [](int) { return dot; }) && isDone;
    for (int frame = 0; frame < frameCount; ++frame) {
        const QString file = frames.filePath(QStringLiteral("frame_%1.png").arg(frame, 2, 10, QLatin1Char('0')));
        isDone = renderBars(pattern, file, [frame](int bar) { return barHeight(bar, frame); }) && isDone;
    }
    return isDone;
}

} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: render_icons FOLDER_OF_THE_ICONS FOLDER_FOR_THE_FRAMES\n", stderr);
        return 2;
    }
    return renderAll(QDir(arguments.at(1)), QDir(arguments.at(2))) ? 0 : 1;
}
