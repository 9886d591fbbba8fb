// SPDX-License-Identifier: Apache-2.0
// Compares whole programs, run alternately.
#include "benchmarks/pairs.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

const QString probe = QStringLiteral("host_probe");
const QString bare = QStringLiteral("refresh_bare");
const QString parts = QStringLiteral("bench_sound");

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

// The drivers' versions are looked up while a device is open. `held` is how long the bare program keeps each open, in µs.
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
                   held == 0 ? "bare SDL: start, list, open and close each"
                             : "the same, each device open for " + bench::shown(held / 1e3) + " ms",
                   1.05, comparison));
}

// Where the time of a refresh goes, device by device.
void refreshPartsFigure()
{
    constexpr std::array names{"opening", "open until its closing begins", "closing", "everything else"};
    const auto run = [](const QString &who) { return numbersOf(parts, {QStringLiteral("refresh-parts"), who}); };
    std::vector<QList<double>> ours;
    std::vector<QList<double>> peer;
    for (std::size_t pair = 0; pair < bench::usualPairCount; ++pair) {
        if (pair % 2 != 0)
            peer.push_back(run(QStringLiteral("bare")));
        ours.push_back(run(QStringLiteral("module")));
        if (pair % 2 == 0)
            peer.push_back(run(QStringLiteral("bare")));
    }
    const std::string deviceCount = QString::number(ours.front().at(4)).toStdString();
    for (std::size_t part = 0; part < names.size(); ++part) {
        const auto valuesOf = [part](const std::vector<QList<double>> &runs) {
            std::vector<double> values;
            for (const QList<double> &numbers : runs)
                values.push_back(numbers.at(static_cast<qsizetype>(part)));
            return values;
        };
        const auto quartiles = [](const std::vector<double> &list) {
            return bench::shown(bench::quantile(list, 0.25)) + "–" + bench::shown(bench::quantile(list, 0.75));
        };
        const std::vector<double> own = valuesOf(ours);
        const std::vector<double> other = valuesOf(peer);
        bench::print({"refresh, for each of " + deviceCount + " devices: " + names.at(part), "bare SDL", "-",
                      bench::shown(bench::median(own)) + " ms, bare " + bench::shown(bench::median(other)) + " ms",
                      quartiles(own) + ", bare " + quartiles(other) + " ms in " + std::to_string(own.size()) + " pairs"});
    }
}

// Of one refresh, for a comparison across cards
void refreshSeconds(const Libraries &libraries)
{
    const QList<double> numbers = numbersOf(probe, {QStringLiteral("refresh"), libraries.module});
    std::printf("%.6f\n", numbers.at(0));
}

// `peer` is what the added memory is added to, and its name.
void memoryFigure(const std::string &name, const bench::Measurement &subject, const std::string &peerName,
                  const bench::Measurement &peer)
{
    std::vector<double> added;
    for (std::size_t pair = 0; pair < bench::usualPairCount; ++pair) {
        const double without = peer();
        added.push_back((subject() - without) / 1024);
    }
    const std::string pairs = " MB in " + std::to_string(bench::usualPairCount) + " pairs";
    bench::print({"resident memory that the module adds, " + name, peerName, "≤ 3 MB",
                  bench::shown(bench::median(added)) + " MB",
                  bench::shown(bench::quantile(added, 0.25)) + "–" + bench::shown(bench::quantile(added, 0.75)) + pairs,
                  bench::median(added) <= 3});
}

void memoryFigures(const Libraries &libraries)
{
    const auto kilobytesOf = [](const QString &program, const QStringList &arguments) {
        return [=] { return numbersOf(program, arguments).at(0); };
    };
    const std::string bareName = "a bare host with Qt and SDL";
    const auto bareHost = kilobytesOf(probe, {QStringLiteral("memory-bare"), libraries.sound, libraries.driver});
    memoryFigure("idle", kilobytesOf(probe, {QStringLiteral("memory-module"), libraries.module}), bareName, bareHost);
    const std::string name = "after 100 runs, Qt's picture cache emptied";
    const auto afterRuns = kilobytesOf(probe, {QStringLiteral("memory-module-runs"), libraries.module});
    memoryFigure(name, afterRuns, bareName, bareHost);
    // The form's program has the module's code in it, so that only what the form adds to it is taken.
    const auto form = kilobytesOf(parts, {QStringLiteral("memory-of-dialogs")});
    memoryFigure(name, afterRuns, "such a host, and what the playback test's form adds that bare Qt shows 100 times",
                 [=] { return bareHost() + form(); });
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

/// bench_hosts WHAT MODULE SDL_LIBRARY DRIVER [MICROSECONDS]
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
        refreshFigure(libraries, words.value(5).toInt());
    else if (words.at(1) == u"refresh-parts")
        refreshPartsFigure();
    else if (words.at(1) == u"seconds")
        refreshSeconds(libraries);
    else if (words.at(1) == u"memory")
        memoryFigures(libraries);
    else if (words.at(1) == u"memory-runs")
        growthFigure(libraries);
    return 0;
}
