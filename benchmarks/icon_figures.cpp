// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "benchmarks/pairs.h"
#include "contract/sal.h"
#include "utils/icon_recolouring.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryFile>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {

constexpr int iconCount = 20;
const char *const iconPath = ":/audio/resources/icons/microphone_test.svg";

double secondsToRecolour()
{
    QObject dialog; // owns the files, which go with it
    const QString value = QStringLiteral("url(\"%1\")").arg(QLatin1StringView(iconPath));
    QString last;
    const double seconds = secondsOf([&] {
        for (int icon = 0; icon < iconCount; ++icon)
            last = ostra::utils::recolourIcon(&dialog, value, QStringLiteral("#ffff00"));
    });
    if (last == value) {
        std::fputs("the icon could not be recoloured\n", stderr);
        std::exit(2);
    }
    return seconds;
}

// A file of its own for each copy, as a recoloured icon needs: named, kept open and removed at the end.
bool copyIcon(QObject &owner, const QString &folder)
{
    QFile source{QLatin1StringView(iconPath)};
    auto *copy = new QTemporaryFile(folder + QStringLiteral("/copy_XXXXXX.svg"), &owner);
    return source.open(QIODevice::ReadOnly) && copy->open() && !copy->fileName().isEmpty() &&
           copy->write(source.readAll()) == source.size() && copy->flush();
}

// Under a name that is only counted up, and closed again.
bool copyIconPlainly(QObject & /*owner*/, const QString &folder)
{
    static int number = 0;
    QFile source{QLatin1StringView(iconPath)};
    QFile copy(folder + QStringLiteral("/plain_%1.svg").arg(++number));
    return source.open(QIODevice::ReadOnly) && copy.open(QIODevice::WriteOnly) &&
           copy.write(source.readAll()) == source.size() && copy.flush();
}

double secondsToCopy(bool (*copyOnce)(QObject &, const QString &))
{
    QObject owner;
    const QString folder = QString::fromStdString(get_temporary_path()->path()) + QStringLiteral("/temp");
    bool isCopied = true;
    const double seconds = secondsOf([&] {
        for (int icon = 0; icon < iconCount; ++icon)
            isCopied = copyOnce(owner, folder) && isCopied;
    });
    if (!isCopied)
        std::fputs("the icon could not be copied\n", stderr);
    QDir plain(folder, QStringLiteral("plain_*.svg"));
    for (const QString &name : plain.entryList(QDir::Files))
        plain.remove(name);
    return seconds;
}

void compareWith(const char *peer, bool (*copyOnce)(QObject &, const QString &))
{
    Comparison comparison =
        compare([] { return fastest(&secondsToRecolour); }, [&] { return fastest([&] { return secondsToCopy(copyOnce); }); });
    comparison.subject /= iconCount;
    comparison.peer /= iconCount;
    print(ratioRow("recolouring an icon", peer, 1.2, comparison, {1e6, "µs"}));
}

} // namespace

void iconFigures()
{
    compareWith("reading the file and writing it under a new name", &copyIcon);
    compareWith("reading the file and writing it under a number, closed at once", &copyIconPlainly);
}

} // namespace bench
