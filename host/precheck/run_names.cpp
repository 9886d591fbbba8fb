// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/run_names.h"

#include "host/core/capture_source.h"
#include "host/precheck/capture_devices.h"
#include "host/precheck/listening_sources.h"

#include <algorithm>
#include <array>
#include <optional>

namespace host {

namespace {

// The other drivers of the sound library have names of their own.
bool isDriverOfTheSystem()
{
    constexpr std::array names{"", "pulseaudio", "wasapi"};
    const QByteArray driver = qgetenv("SDL_AUDIODRIVER");
    return std::find(names.begin(), names.end(), driver) != names.end();
}

QString unlessKnown(const char *kind, const QString &name, const QStringList &known)
{
    if (name.isEmpty() || known.isEmpty() || known.contains(name))
        return {};
    return unknownName(QLatin1String(kind), name, known);
}

QString wrongSource(const QString &name, const QStringList &outputs)
{
    QStringList known;
    if (name.startsWith(loopbackPrefix)) {
        for (const QString &output : outputs)
            known.append(loopbackPrefix + output);
    } else if (const auto sources = name.isEmpty() ? std::nullopt : readListeningSources()) {
        for (const ListeningSource &source : *sources)
            known.append(source.name);
    }
    return unlessKnown("capture source", name, known);
}

QString wrongMicrophone(const QString &name)
{
    QStringList known;
    if (!name.isEmpty()) {
        for (const CaptureDevice &input : readCaptureDevices())
            known.append(input.name);
    }
    return unlessKnown("microphone", name, known);
}

} // namespace

QString unknownName(const QString &kind, const QString &name, const QStringList &known)
{
    const QString names = known.isEmpty() ? QStringLiteral("there is none")
                                          : QStringLiteral("known: '%1'").arg(known.join(QStringLiteral("', '")));
    return QStringLiteral("unknown %1 '%2' (%3)").arg(kind, name, names);
}

QString wrongName(const RunNames &names, const QStringList &outputs)
{
    if (!isDriverOfTheSystem())
        return {};
    QString wrong = wrongSource(names.source, outputs);
    if (wrong.isEmpty())
        wrong = wrongMicrophone(names.microphone);
    return wrong.isEmpty() ? unlessKnown("output", names.speakThrough, outputs) : wrong;
}

} // namespace host
