// SPDX-License-Identifier: Apache-2.0
#include "host/core/capture_source.h"
#include "host/listener/event_lines.h"
#include "host/listener/listen_loop.h"
#include "host/measure/digit_clips.h"

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

std::filesystem::path pathOf(const QString &name) { return {name.toStdU16String()}; }

host::EarMaker digitEar(const ListenerOptions &options)
{
    const auto clips = measure::readDigitClips(pathOf(options.clipsFolder), options.language.toStdString());
    if (!clips)
        return {};
    return [clips = *clips](const host::LineWriter &write) {
        return std::make_unique<host::StreamListener>(
            clips, [write](const host::HeardSound &sound) { write(host::soundLine(sound)); });
    };
}

host::EarMaker clipEar(const std::optional<measure::MonoSound> &clip)
{
    return [clip](const host::LineWriter &write) {
        return std::make_unique<host::ClipListener>(clip,
                                                    [write](const host::HeardClip &heard) { write(host::clipLine(heard)); });
    };
}

host::EarMaker fileEar(const QString &file)
{
    const std::optional<measure::MonoSound> clip = measure::readWavFile(pathOf(file));
    const bool isUsable = clip && !clip->samples.empty() &&
                          std::ssize(clip->samples) * std::int64_t{host::captureRate} <=
                              host::ClipSearch::maxFrameCount * std::int64_t{clip->sampleRate};
    return isUsable ? clipEar(clip) : host::EarMaker();
}

host::EarMaker earFor(const ListenerOptions &options)
{
    if (!options.clipFile.isEmpty())
        return fileEar(options.clipFile);
    return options.language.isEmpty() ? clipEar(std::nullopt) : digitEar(options);
}

ListenerExit refuseClips(const ListenerOptions &options)
{
    return refuse(ListenerExit::usage, options.clipFile.isEmpty()
                                           ? QStringLiteral("the ten clips of '%1' cannot be read").arg(options.language)
                                           : QStringLiteral("the clip '%1' cannot be used").arg(options.clipFile));
}

ListenerExit listenTo(Capture &capture, const ListenerOptions &options)
{
    const host::EarMaker makeEar = earFor(options);
    if (!makeEar)
        return refuseClips(options);
    const QString source = host::systemSource(options.source);
    if (host::loopbackDevice(source).isEmpty()) {
        const QStringList known = capture.sources();
        if (!known.contains(source))
            return refuseSource(options.source, known);
    }
    if (!capture.open(source))
        return refuse(ListenerExit::noSource,
                      QStringLiteral("'%1' cannot be opened: %2").arg(options.source, capture.errorText()));
    return host::listen(capture, makeEar, options);
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
