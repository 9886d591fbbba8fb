// SPDX-License-Identifier: Apache-2.0

// Stands in for the listener: says what the file "listener_script" beside it holds, line by line as they are appended. A line
// "!exit N" ends it. Its arguments go to the file "listener_arguments".

#include "host/listener/parent_link.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <cstdio>
#include <thread>

namespace {

QString beside(const QString &name) { return QCoreApplication::applicationDirPath() + u'/' + name; }

void noteArguments()
{
    QFile file(beside(QStringLiteral("listener_arguments")));
    if (file.open(QIODevice::WriteOnly))
        file.write(QCoreApplication::arguments().mid(1).join(u'\n').toUtf8());
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    noteArguments();
    QFile script(beside(QStringLiteral("listener_script")));
    if (!script.open(QIODevice::ReadOnly))
        return 3;
    while (!host::hasInputEnded()) {
        for (QByteArray line = script.readLine(); !line.isEmpty(); line = script.readLine()) {
            if (line.startsWith("!exit "))
                return line.mid(6).trimmed().toInt();
            std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
            std::fflush(stdout);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return 0;
}
