// SPDX-License-Identifier: Apache-2.0

// Stands in for the graphical host. The environment tells how it ends, HOST_END_<device> or else HOST_END, as words: "write=N"
// writes that verdict ("_" for a blank), "report=TEXT" that into its reports, "call=FILE" runs that program, "exit=N" ends with
// that code, "abort" breaks down, and "hang" takes no request to end.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStringList>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace {

// Longer than any test waits, and no longer: nobody shall have to look for it.
constexpr std::chrono::seconds hangTime{60};

QStringList valuesOf(const QString &option)
{
    QStringList values;
    const QStringList arguments = QCoreApplication::arguments();
    for (const QString &argument : arguments) {
        if (argument.startsWith(option))
            values.append(argument.mid(option.size()));
    }
    return values;
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

void act(const QString &word)
{
    const QString value = word.section(u'=', 1);
    if (word.startsWith(QStringLiteral("write=")))
        write(valuesOf(QStringLiteral("--verdict-file=")).value(0), QString(value).replace(u'_', u' ').toUtf8() + '\n');
    for (const QString &file : valuesOf(QStringLiteral("--report="))) {
        if (word.startsWith(QStringLiteral("report=")))
            write(file, value.toUtf8());
    }
    if (word.startsWith(QStringLiteral("call=")))
        QProcess::execute(value, {});
    if (word.startsWith(QStringLiteral("exit=")))
        std::exit(value.toInt());
    if (word == QLatin1String("abort"))
        std::abort();
    if (word == QLatin1String("hang"))
        std::this_thread::sleep_for(hangTime);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    std::signal(SIGTERM, SIG_IGN);
    const QByteArray device = valuesOf(QStringLiteral("--device=")).value(0).toUtf8();
    const QByteArray own = qgetenv("HOST_END_" + device);
    const QStringList words = QString::fromUtf8(own.isEmpty() ? qgetenv("HOST_END") : own).split(u' ');
    for (const QString &word : words)
        act(word);
    return 0;
}
