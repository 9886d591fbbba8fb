// SPDX-License-Identifier: Apache-2.0
// Compares whole programs, run alternately.
#include "benchmarks/pairs.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace {

const QString probe = QStringLiteral("host_probe");
const QString bare = QStringLiteral("refresh_bare");

QString beside(const QString &program) { return QCoreApplication::applicationDirPath() + u'/' + program; }

// The numbers that the program prints in its last line.
QList<double> numbersOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(beside(program), arguments);
    if (!process.waitForFinished(600'000) || process.exitCode() != 0) {
        std::fprintf(stderr, "%s failed\n", qPrintable(program));
        std::exit(2);
    }
    QList<double> numbers;
    const QByteArrayList lines = process.readAllStandardOutput().trimmed().split('\n');
    for (const QByteArray &word : lines.last().trimmed().split(' '))
        numbers.append(word.toDouble());
    return numbers;
}

struct Libraries {
    QString module;
    QString sound;
    QString driver;
};

// The drivers' versions are looked up while a device is open. `held` is how long the bare program keeps each open, in ms.
void refreshFigure(const Libraries &libraries, int held)
{
    double deviceCount = 0;
    const auto ours = [&] {
        const QList<double> numbers = numbersOf(probe, {QStringLiteral("refresh"), libraries.module});
        deviceCount = numbers.at(1);
        return numbers.at(0);
    };
    const auto peer = [&] { return numbersOf(bare, {libraries.sound, libraries.driver, QString::number(held)}).at(0); };
    const bench::Comparison comparison = bench::compare(ours, peer);
    print(ratioRow("load library, get instance, refresh: " + QString::number(deviceCount).toStdString() + " devices",
                   held == 0
                       ? "bare SDL: start, list, open and close each"
                       : "the same, each device open for " + std::to_string(held) + " ms, as the look-up of its driver is",
                   1.05, comparison));
}

// Of one refresh, for a comparison across cards
void refreshSeconds(const Libraries &libraries)
{
    const QList<double> numbers = numbersOf(probe, {QStringLiteral("refresh"), libraries.module});
    std::printf("%.6f\n", numbers.at(0));
}

void memoryFigures(const Libraries &libraries)
{
    std::vector<double> added;
    for (std::size_t pair = 0; pair < bench::usualPairCount; ++pair) {
        const double without = numbersOf(probe, {QStringLiteral("memory-bare"), libraries.driver}).at(0);
        const double with = numbersOf(probe, {QStringLiteral("memory-module"), libraries.module}).at(0);
        added.push_back((with - without) / 1024);
    }
    const std::string pairs = " MB in " + std::to_string(bench::usualPairCount) + " pairs";
    bench::print({"resident memory that the module adds, idle", "a bare host with Qt and SDL", "≤ 3 MB",
                  bench::shown(bench::median(added)) + " MB",
                  bench::shown(bench::quantile(added, 0.25)) + "–" + bench::shown(bench::quantile(added, 0.75)) + pairs,
                  bench::median(added) <= 3});
}

// One process, 200 runs.
void growthFigure(const Libraries &libraries)
{
    const QList<double> numbers = numbersOf(probe, {QStringLiteral("memory-runs"), libraries.module});
    const double grown = numbers.at(1) - numbers.at(0);
    bench::print({"memory held after 200 runs, Qt's picture cache emptied", "the same process after 100 runs",
                  "no growth beyond 0.25 MB", bench::shown(grown) + " kB",
                  bench::shown(numbers.at(0) / 1024) + " MB, then " + bench::shown(numbers.at(1) / 1024) + " MB",
                  grown <= 256});
}

} // namespace

/// bench_hosts WHAT MODULE SDL_LIBRARY DRIVER
int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 5)
        return 2;
    const Libraries libraries{words.at(2), words.at(3), words.at(4)};
    if (words.at(1) == u"refresh")
        refreshFigure(libraries, 0);
    else if (words.at(1) == u"refresh-held")
        refreshFigure(libraries, 3);
    else if (words.at(1) == u"seconds")
        refreshSeconds(libraries);
    else if (words.at(1) == u"memory")
        memoryFigures(libraries);
    else if (words.at(1) == u"memory-runs")
        growthFigure(libraries);
    return 0;
}
