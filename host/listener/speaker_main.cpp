// SPDX-License-Identifier: Apache-2.0
#include "host/listener/capture.h"
#include "host/listener/listen_loop.h"
#include "host/measure/wav_file.h"

#include <SDL.h>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

enum class SpeakerExit { told = 0, usage = 2, noDevice = 3, lost = 4 };

constexpr auto help = R"(Usage: audio_speaker --device NAME --play FILE [--channel left|right]

Opens an output device and plays a WAVE file to it once, as soon as a line arrives on standard input. Writes one JSON object a
line: "ready" when the device is open, "started", "finished". Ends then, or at the end of its standard input.

  --device NAME    the output device: its exact name
  --play FILE      the WAVE file
  --channel SIDE   on the front left or the front right channel alone; the file has to be 16-bit PCM
  --help           this text

Exit codes: 0 it played or was told to end, 2 wrong usage or an unreadable file, 3 no such device, 4 the device was lost.
)";

/// As much as the module takes: a smaller buffer runs empty on a busy machine, and the sentence gets holes.
constexpr std::uint16_t deviceBufferFrameCount = 4096;
constexpr Uint32 pollMs = 10;
/// Frames that are still on their way when the queue is empty: two of the device's buffers and those of the sound server.
constexpr Uint32 tailMs = 400;

SpeakerExit refuse(SpeakerExit code, const QString &message)
{
    std::fprintf(stderr, "audio_speaker: %s\n", message.toUtf8().constData());
    return code;
}

void tell(const char *event)
{
    using namespace std::chrono;
    const auto now = floor<milliseconds>(steady_clock::now().time_since_epoch()).count();
    host::writeLine(QByteArray(R"({"atMs":)") + QByteArray::number(static_cast<qint64>(now)) + R"(,"event":")" + event + "\"}");
}

QString soundError() { return QString::fromUtf8(SDL_GetError()); }

bool startLibrary()
{
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_setenv("SDL_AUDIODRIVER", host::captureDriverName(), 1);
    return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
}

bool isAskedToPlay()
{
    std::string line;
    return static_cast<bool>(std::getline(std::cin, line));
}

SpeakerExit play(SDL_AudioDeviceID device)
{
    tell("started");
    SDL_PauseAudioDevice(device, SDL_FALSE);
    while (SDL_GetQueuedAudioSize(device) > 0) {
        if (SDL_GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED)
            return refuse(SpeakerExit::lost, QStringLiteral("the device was lost"));
        SDL_Delay(pollMs);
    }
    SDL_Delay(tailMs);
    tell("finished");
    return SpeakerExit::told;
}

SpeakerExit openAndPlay(const QString &name, const SDL_AudioSpec &given, const void *samples, std::uint32_t byteCount)
{
    SDL_AudioSpec wanted = given;
    wanted.samples = deviceBufferFrameCount;
    const SDL_AudioDeviceID device = SDL_OpenAudioDevice(name.toUtf8().constData(), SDL_FALSE, &wanted, nullptr, 0);
    if (device == 0)
        return refuse(SpeakerExit::noDevice, QStringLiteral("'%1' cannot be opened: %2").arg(name, soundError()));
    if (SDL_QueueAudio(device, samples, byteCount) != 0)
        return refuse(SpeakerExit::noDevice, soundError());
    tell("ready");
    return isAskedToPlay() ? play(device) : SpeakerExit::told;
}

SpeakerExit speakOnOneSide(const QString &device, const QString &file, bool isLeft)
{
    const auto clip = measure::readWavFile(file.toStdU16String());
    if (!clip || clip->samples.empty())
        return refuse(SpeakerExit::usage, QStringLiteral("'%1' cannot be read").arg(file));
    SDL_AudioSpec spec{};
    spec.freq = static_cast<int>(clip->sampleRate);
    spec.format = AUDIO_F32SYS;
    spec.channels = 2;
    std::vector<float> frames;
    for (const float sample : clip->samples)
        frames.insert(frames.end(), {isLeft ? sample : 0.0F, isLeft ? 0.0F : sample});
    return openAndPlay(device, spec, frames.data(), static_cast<std::uint32_t>(frames.size() * sizeof(float)));
}

SpeakerExit speakAsItIs(const QString &device, const QString &file)
{
    SDL_AudioSpec spec{};
    std::uint8_t *samples = nullptr;
    std::uint32_t byteCount = 0;
    if (SDL_LoadWAV(file.toUtf8().constData(), &spec, &samples, &byteCount) == nullptr)
        return refuse(SpeakerExit::usage, QStringLiteral("'%1' cannot be read: %2").arg(file, soundError()));
    const SpeakerExit code = openAndPlay(device, spec, samples, byteCount);
    SDL_FreeWAV(samples);
    return code;
}

SpeakerExit speak(const QString &device, const QString &file, const QString &channel)
{
    if (!startLibrary())
        return refuse(SpeakerExit::noDevice, QStringLiteral("no sound server: %1").arg(soundError()));
    return channel.isEmpty() ? speakAsItIs(device, file) : speakOnOneSide(device, file, channel == QLatin1String("left"));
}

SpeakerExit run()
{
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
    for (const char *name : {"device", "play", "channel"})
        parser.addOption(QCommandLineOption(QLatin1String(name), {}, QStringLiteral("VALUE")));
    if (!parser.parse(QCoreApplication::arguments()))
        return refuse(SpeakerExit::usage, QStringLiteral("%1 (try --help)").arg(parser.errorText()));
    if (parser.isSet(QStringLiteral("help"))) {
        std::fputs(help, stdout);
        return SpeakerExit::told;
    }
    const QString device = parser.value(QStringLiteral("device"));
    const QString file = parser.value(QStringLiteral("play"));
    if (device.isEmpty() || file.isEmpty() || !parser.positionalArguments().isEmpty())
        return refuse(SpeakerExit::usage, QStringLiteral("--device and --play are needed, nothing else (try --help)"));
    const QString channel = parser.value(QStringLiteral("channel"));
    if (parser.isSet(QStringLiteral("channel")) && channel != QLatin1String("left") && channel != QLatin1String("right"))
        return refuse(SpeakerExit::usage, QStringLiteral("'%1' is no channel: left or right (try --help)").arg(channel));
    return speak(device, file, channel);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const SpeakerExit code = run();
    std::fflush(stdout);
    std::_Exit(static_cast<int>(code)); // closing a device of a server that does not answer would wait for ever
}
