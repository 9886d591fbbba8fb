// SPDX-License-Identifier: Apache-2.0

// Stands in for the speaker: "ready", and "started" and "finished" when it is told to speak. Its arguments go to the file
// "speaker_arguments". The device "Broken" cannot be opened.

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <cstdio>
#include <iostream>
#include <string>

namespace {

void tell(const char *event)
{
    using namespace std::chrono;
    const auto now = floor<milliseconds>(steady_clock::now().time_since_epoch()).count();
    std::printf("{\"event\":\"%s\",\"atMs\":%lld}\n", event, static_cast<long long>(now));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains(QStringLiteral("Broken"))) {
        std::fputs("audio_speaker: 'Broken' cannot be opened\n", stderr);
        return 3;
    }
    QFile file(QCoreApplication::applicationDirPath() + QStringLiteral("/speaker_arguments"));
    if (file.open(QIODevice::WriteOnly))
        file.write(arguments.join(u'\n').toUtf8());
    file.close();
    tell("ready");
    std::string line;
    if (!std::getline(std::cin, line))
        return 0;
    tell("started");
    tell("finished");
    return 0;
}
