// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/operator/listener_script.h"

#include "host/operator/heard_log.h"

#include <QCoreApplication>

ListenerScript::ListenerScript(bool isReady)
    : file_(QCoreApplication::applicationDirPath() + QStringLiteral("/listener_script"))
{
    if (!file_.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("the script cannot be written");
    levelToldMs_ = host::steadyNowMs();
    if (isReady)
        say(R"({"event":"ready","steadyMs":)" + QByteArray::number(levelToldMs_) + '}');
}

// In one piece, so that the reader never sees half a line.
void ListenerScript::say(const QByteArray &line)
{
    file_.write(line + '\n');
    file_.flush();
}

void ListenerScript::digit(int digit, double score)
{
    say(QByteArray(R"({"event":"digit","digit":)") + QByteArray::number(digit) + R"(,"score":)" + QByteArray::number(score) +
        R"(,"margin":0.5,"levelDbfs":-20,"clipped":false,"startMs":)" + QByteArray::number(host::steadyNowMs()) + '}');
}

void ListenerScript::sound(double levelDbfs)
{
    say(R"({"event":"sound","levelDbfs":)" + QByteArray::number(levelDbfs) + R"(,"clipped":true,"startMs":)" +
        QByteArray::number(host::steadyNowMs()) + '}');
}

void ListenerScript::level(double levelDbfs, double share, int droppedFrameCount)
{
    const qint64 atMs = host::steadyNowMs() + 3000;
    const double frameCount = static_cast<double>(atMs - levelToldMs_) * 48 * share;
    levelToldMs_ = atMs;
    say(R"({"event":"level","levelDbfs":)" + QByteArray::number(levelDbfs) + R"(,"frames":)" + QByteArray::number(frameCount) +
        R"(,"droppedFrames":)" + QByteArray::number(droppedFrameCount) + R"(,"atMs":)" + QByteArray::number(atMs) + '}');
}

void ListenerScript::end(int exitCode) { say("!exit " + QByteArray::number(exitCode)); }
