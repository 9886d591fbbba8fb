// SPDX-License-Identifier: Apache-2.0

// Stands in for the speaker: "ready", and "started" and "finished" when it is told to speak. Its arguments go to the file
// "speaker_arguments". On one channel alone it takes half a second, and notes the channel and the moment at which it began in
// the file "speaker_spoke". The device "Broken" cannot be opened, and "Slow" plays nothing as
// long as anybody waits. "Frozen" answers nothing, not even the end of its input, and holds the lock "speaker_lock" for as long
// as it is there; so does every device while there is a file "speaker_frozen".

#include <QCoreApplication>
#include <QFile>
#include <QLockFile>
#include <QSaveFile>

#include <chrono>
#include <cstdio>
#include <iostream>
#include <string>
#include <thread>

namespace {

qint64 nowMs()
{
    using namespace std::chrono;
    return floor<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void tell(const char *event)
{
    std::printf("{\"event\":\"%s\",\"atMs\":%lld}\n", event, static_cast<long long>(nowMs()));
    std::fflush(stdout);
}

QString beside(const char *name) { return QCoreApplication::applicationDirPath() + u'/' + QLatin1String(name); }

// Two minutes: longer than anybody waits for it, and not for ever.
int freeze()
{
    QLockFile lock(beside("speaker_lock"));
    lock.lock();
    std::this_thread::sleep_for(std::chrono::minutes(2));
    return 4;
}

// Where an open file cannot be replaced, the test that reads it may be in the way.
void note(const char *name, const QByteArray &text)
{
    constexpr int tries = 200;
    for (int attempt = 0; attempt < tries; ++attempt) {
        QSaveFile file(beside(name));
        if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
            return;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
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
    if (arguments.contains(QStringLiteral("Frozen")) || QFile::exists(beside("speaker_frozen")))
        return freeze();
    note("speaker_arguments", arguments.join(u'\n').toUtf8());
    tell("ready");
    std::string line;
    if (!std::getline(std::cin, line))
        return 0;
    if (arguments.contains(QStringLiteral("Slow")) && std::getline(std::cin, line))
        return 0;
    tell("started");
    if (const qsizetype channel = arguments.indexOf(QStringLiteral("--channel")); channel >= 0) {
        note("speaker_spoke", arguments.value(channel + 1).toUtf8() + ' ' + QByteArray::number(nowMs()));
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }
    tell("finished");
    return 0;
}
