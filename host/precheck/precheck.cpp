// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/precheck.h"

#include "audio/endpoints/endpoint_names.h"
#include "audio/endpoints/endpoint_volume.h"
#include "host/precheck/clip_check.h"
#include "host/precheck/device_names.h"
#include "host/precheck/listening_sources.h"
#include "host/precheck/microphone_privacy.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

using ostra::audio::EndpointName;
using ostra::audio::EndpointVolume;

std::u16string idOf(const QString &device, const std::vector<EndpointName> &endpoints)
{
    DeviceNames names;
    for (const EndpointName &endpoint : endpoints) {
        if (names.next(QString::fromStdString(endpoint.description)) == device)
            return endpoint.id;
    }
    return {};
}

void checkLevels(const QString &device, QList<PrecheckFinding> &findings)
{
    ostra::audio::EndpointNames names;
    ostra::audio::EndpointVolumes volumes;
    if (readEndpointNames(names) != 0 || readEndpointVolumes(volumes) != 0) {
        findings.append({Precheck::soundServerSilent, {}});
        return;
    }
    const std::u16string id = idOf(device, names);
    const auto volume =
        std::find_if(volumes.begin(), volumes.end(), [&id](const EndpointVolume &entry) { return entry.id == id; });
    if (id.empty() || volume == volumes.end())
        return;
    if (volume->muted)
        findings.append({Precheck::deviceMuted, device});
    if (volume->level <= 0.0F)
        findings.append({Precheck::deviceAtZero, device});
}

void checkLanguage(const PrecheckQuestion &question, QList<PrecheckFinding> &findings)
{
    const ClipCheck check = checkClips(question.clipsFolder, {question.language});
    const auto missing = std::count_if(check.faults.begin(), check.faults.end(),
                                       [](const FaultyClip &clip) { return clip.fault == ClipFault::missing; });
    if (missing == clipsPerLanguage) {
        findings.append({Precheck::clipsMissing, question.language});
        return;
    }
    for (const FaultyClip &clip : check.faults)
        findings.append({Precheck::clipDamaged, clip.file});
    if (!check.hasManifest)
        findings.append({Precheck::clipsUnchecked, {}});
}

// A source that was turned down hears nothing, however well the device plays.
void checkSource(const QString &name, QList<PrecheckFinding> &findings)
{
    const std::optional<QList<ListeningSource>> sources = readListeningSources();
    const ListeningSource *source = sources ? findListeningSource(*sources, name) : nullptr;
    if (source == nullptr)
        return;
    if (source->isMuted)
        findings.append({Precheck::sourceMuted, name});
    else if (source->level <= 0.0F)
        findings.append({Precheck::sourceAtZero, name});
}

void checkSpeech(const PrecheckQuestion &question, QList<PrecheckFinding> &findings)
{
    const ClipCheck check = checkSentence(question.clipsFolder);
    for (const FaultyClip &clip : check.faults)
        findings.append({Precheck::clipDamaged, clip.file});
}

} // namespace

bool PrecheckFinding::isBlocking() const
{
    switch (what) {
    case Precheck::clipsMissing:
    case Precheck::clipDamaged:
    case Precheck::sourceMuted:
    case Precheck::sourceAtZero:
        return true;
    case Precheck::microphoneBlocked: // a person may still open it
        return isUnattended;
    default:
        return false;
    }
}

QList<PrecheckFinding> checkBeforeRun(const PrecheckQuestion &question)
{
    QList<PrecheckFinding> findings;
    checkLevels(question.device, findings);
    if (!question.language.isEmpty())
        checkLanguage(question, findings);
    if (question.isSpeaking)
        checkSpeech(question, findings);
    if (!question.source.isEmpty())
        checkSource(question.source, findings);
    if (question.isRecording && isMicrophoneBlocked())
        findings.append({Precheck::microphoneBlocked, {}});
    for (PrecheckFinding &finding : findings)
        finding.isUnattended = !question.source.isEmpty();
    return findings;
}

const char *precheckKey(Precheck what) noexcept
{
    switch (what) {
    case Precheck::soundServerSilent:
        return "PRECHECK_SOUND_SERVER_SILENT";
    case Precheck::deviceMuted:
        return "PRECHECK_DEVICE_MUTED";
    case Precheck::deviceAtZero:
        return "PRECHECK_DEVICE_AT_ZERO";
    case Precheck::clipsMissing:
        return "PRECHECK_CLIPS_MISSING";
    case Precheck::clipDamaged:
        return "PRECHECK_CLIP_DAMAGED";
    case Precheck::clipsUnchecked:
        return "PRECHECK_CLIPS_UNCHECKED";
    case Precheck::sourceMuted:
        return "PRECHECK_SOURCE_MUTED";
    case Precheck::sourceAtZero:
        return "PRECHECK_SOURCE_AT_ZERO";
    case Precheck::microphoneBlocked:
        break;
    }
    return "PRECHECK_MICROPHONE_BLOCKED";
}

QString precheckText(const PrecheckFinding &finding)
{
    const QString text = QCoreApplication::translate("HOST", precheckKey(finding.what));
    return text.contains(QStringLiteral("%1")) ? text.arg(finding.subject) : text;
}

} // namespace host
