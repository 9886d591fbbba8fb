// SPDX-License-Identifier: Apache-2.0

// Says which spoken digit a raw capture holds, so that end-to-end tests can listen to what was played.

#include "host/measure/digit_clips.h"
#include "host/measure/matched_filter.h"
#include "host/measure/wav_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <string_view>
#include <system_error>

namespace {

constexpr int exitAccepted = 0;
constexpr int exitNotAccepted = 1;
constexpr int exitUnusable = 2;

/// Stands for digital silence, whose level has no logarithm.
constexpr double silenceDbfs = -120;

struct Arguments {
    const char *clipsFolder = nullptr;
    const char *language = nullptr;
    const char *captureFile = nullptr;
    std::uint32_t sampleRate = 48000;
    std::uint32_t channelCount = 2;
};

bool readNumber(std::string_view text, std::uint32_t &number)
{
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

bool readArguments(int count, char *values[], Arguments &arguments)
{
    if (count < 4 || count > 6)
        return false;
    arguments.clipsFolder = values[1];
    arguments.language = values[2];
    arguments.captureFile = values[3];
    return (count < 5 || readNumber(values[4], arguments.sampleRate)) &&
           (count < 6 || readNumber(values[5], arguments.channelCount));
}

double rmsDbfs(const measure::MonoSound &sound)
{
    double energy = 0;
    for (const float sample : sound.samples)
        energy += double{sample} * double{sample};
    const double power = energy / static_cast<double>(std::max<std::size_t>(1, sound.samples.size()));
    return power > 0 ? std::max(silenceDbfs, 10 * std::log10(power)) : silenceDbfs;
}

int fail(const char *what, const char *subject)
{
    std::fprintf(stderr, "recognise_digit: %s %s\n", what, subject);
    return exitUnusable;
}

int usage()
{
    std::fputs("Usage: recognise_digit CLIPS_DIR LANGUAGE CAPTURE.raw [RATE [CHANNELS]]\n"
               "CAPTURE.raw: signed 16-bit little-endian frames, 48000 Hz and 2 channels unless told.\n"
               "Prints one line of JSON; exit code 0: digit accepted, 1: not accepted, 2: usage or unreadable file.\n",
               stderr);
    return exitUnusable;
}

int run(const Arguments &arguments)
{
    const auto clips = measure::readDigitClips(arguments.clipsFolder, arguments.language);
    if (!clips)
        return fail("cannot read the ten clips of", arguments.language);
    const auto capture = measure::readRawFile(arguments.captureFile, arguments.sampleRate, arguments.channelCount);
    if (!capture)
        return fail("cannot read", arguments.captureFile);
    const measure::Recognition found = measure::MatchedFilter(*clips).recognise(*capture);
    std::printf("{\"digit\":%d,\"score\":%.4f,\"margin\":%.4f,\"lagSeconds\":%.6f,\"rmsDbfs\":%.2f,\"accepted\":%s}\n",
                found.digit.value_or(-1), found.score, found.margin, found.lag.count(), rmsDbfs(*capture),
                found.accepted ? "true" : "false");
    return found.accepted ? exitAccepted : exitNotAccepted;
}

} // namespace

int main(int argumentCount, char *argumentValues[])
{
    Arguments arguments;
    if (!readArguments(argumentCount, argumentValues, arguments))
        return usage();
    try {
        return run(arguments);
    } catch (const std::exception &error) {
        return fail("stopped by", error.what());
    }
}
