// SPDX-License-Identifier: Apache-2.0
#include "host/listener/event_lines.h"
#include "host/listener/listen_loop.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

using host::Capture;
using host::ListenerExit;
using host::ListenerOptions;
using host::ListenerTask;

ListenerExit refuse(ListenerExit code, const QString &message)
{
    std::fprintf(stderr, "audio_listener: %s\n", message.toUtf8().constData());
    return code;
}

ListenerExit listSources(const Capture &capture)
{
    for (const QString &name : capture.sources())
        host::writeLine(host::sourceLine(name));
    return ListenerExit::told;
}

ListenerExit refuseSource(const QString &source, const QStringList &known)
{
    const QString names = known.isEmpty() ? QStringLiteral("none") : u'\'' + known.join(QStringLiteral("', '")) + u'\'';
    return refuse(ListenerExit::noSource, QStringLiteral("no capture source is named '%1' (there are: %2)").arg(source, names));
}

ListenerExit listenTo(Capture &capture, const ListenerOptions &options)
{
    const auto clips =
        measure::readDigitClips(std::filesystem::path(options.clipsFolder.toStdU16String()), options.language.toStdString());
    if (!clips)
        return refuse(ListenerExit::usage, QStringLiteral("the ten clips of '%1' cannot be read").arg(options.language));
    const QStringList known = capture.sources();
    if (!known.contains(options.source))
        return refuseSource(options.source, known);
    if (!capture.open(options.source))
        return refuse(ListenerExit::noSource,
                      QStringLiteral("'%1' cannot be opened: %2").arg(options.source, capture.errorText()));
    return host::listen(capture, *clips, options);
}

ListenerExit runTask(Capture &capture, const ListenerOptions &options)
{
    if (options.task == ListenerTask::help) {
        std::fputs(host::listenerHelp().toUtf8().constData(), stdout);
        return ListenerExit::told;
    }
    if (!capture.startLibrary())
        return refuse(ListenerExit::noSource, QStringLiteral("no sound server: %1").arg(capture.errorText()));
    return options.task == ListenerTask::list ? listSources(capture) : listenTo(capture, options);
}

ListenerExit run(Capture &capture)
{
    const auto parsed = host::parseListenerOptions(QCoreApplication::arguments());
    if (const auto *error = std::get_if<host::ListenerUsageError>(&parsed))
        return refuse(ListenerExit::usage, error->message);
    return runTask(capture, std::get<ListenerOptions>(parsed));
}

} // namespace

int main(int argc, char *argv[])
{
    host::catchEndSignals();
    const QCoreApplication application(argc, argv);
    Capture capture;
    const ListenerExit code = run(capture);
    std::fflush(stdout);
    std::_Exit(static_cast<int>(code)); // the source stays open: see Capture
}
