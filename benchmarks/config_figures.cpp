// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "benchmarks/config_peers.h"
#include "benchmarks/pairs.h"
#include "benchmarks/workloads.h"
#include "utils/config_reader.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace bench {

namespace {

// Qt keeps what it read of a file that did not change; a name that it has not seen yet is read.
class FreshFiles {
public:
    explicit FreshFiles(QByteArray content) : content_(std::move(content)) {}

    std::string next()
    {
        const QString path = folder_.filePath(QStringLiteral("%1.ini").arg(++count_));
        QFile::remove(folder_.filePath(QStringLiteral("%1.ini").arg(count_ - 4)));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content_) != content_.size()) {
            std::fputs("no place for a configuration file\n", stderr);
            std::exit(2);
        }
        return path.toStdString();
    }

private:
    QByteArray content_;
    QTemporaryDir folder_;
    int count_ = 0;
};

double secondsToRead(FreshFiles &files, const ConfigPeer &peer, int times)
{
    double sum = 0;
    for (int time = 0; time < times; ++time) {
        const std::string file = files.next();
        sum += secondsOf([&] { peer.read(file); });
    }
    return sum / times;
}

void readOurs(const std::string &file)
{
    ostra::utils::IniConfiguration configuration;
    ostra::utils::readConfigFile(file, configuration);
}

void compareWithPeers(const std::string &what, const QByteArray &content, bool isOneLine, int times)
{
    FreshFiles files(content);
    const ConfigPeer ours{"", &readOurs, 0, true};
    for (const ConfigPeer &peer : configPeers()) {
        if (isOneLine && !peer.takesHugeLines)
            continue;
        const Comparison comparison = compare([&] { return fastest([&] { return secondsToRead(files, ours, times); }); },
                                              [&] { return fastest([&] { return secondsToRead(files, peer, times); }); });
        print(ratioRow("configuration reader: " + what, peer.name, peer.limit, comparison));
    }
}

} // namespace

void configFigures()
{
    compareWithPeers("product file of 100 lines", productConfiguration(), false, 10);
    compareWithPeers("100,000 lines", longConfiguration(100'000), false, 1);
    compareWithPeers("one line of 10 MB", longLineConfiguration(10'000'000), true, 1);
}

} // namespace bench
