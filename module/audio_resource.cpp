// SPDX-License-Identifier: Apache-2.0
#include "module/audio_resource.h"

#include "contract/message_keys.h"

namespace ostra {

namespace {

// The display names stand in one column: tab, letter, comma, blank, command-line name and padding make 41 characters.
constexpr const char *help = "Audio Module help:\n"
                             "  Usage: TamrexDiagnosticsCLI -Maudio [diagnostic]\"[test(s)]\" [device id(s)]\n"
                             "  Diagnostics:\n"
                             "\t-Q, --quick\tRuns all test(s) of Audio diagnostic\n"
                             "\t-Q\"[test(s)]\", --quick=\"[test(s)]\"\tRuns chosen test(s) of Audio diagnostic\n\n"
                             "  Tests:\n"
                             "\tp, audio_playback_test                   Audio Playback Test*\n\n"
                             "\tm, microphone_interactive_test           Microphone Interactive Test*\n\n"
                             "\n   * Test not supported on CLI\n";

// Key of a test, one of two texts; the empty text for an identity that is no test of this module.
std::string testKey(const EntityId &id, const char *playback, const char *microphone)
{
    if (id == identities::audioPlaybackTest)
        return playback;
    return id == identities::microphoneInteractiveTest ? microphone : "";
}

} // namespace

AudioResource::AudioResource(const EntityId &id) : Resource(id)
{
    addDiagnosticNames(identities::audioDiagnostic, {"Q", "quick"});
    addTestNames(identities::audioPlaybackTest, {"p", "audio_playback_test"});
    addTestNames(identities::microphoneInteractiveTest, {"m", "microphone_interactive_test"});
    setHelpText(help);
}

std::string AudioResource::diagnosticName(EntityId id) const
{
    return id == identities::audioDiagnostic ? keys::quickAudio : "";
}

std::string AudioResource::testName(EntityId id) const
{
    return testKey(id, keys::audioPlaybackTest, keys::microphoneInteractiveTest);
}

std::string AudioResource::diagnosticDescription(EntityId id) const
{
    return id == identities::audioDiagnostic ? keys::quickAudioDescription : "";
}

std::string AudioResource::testDescription(EntityId id) const
{
    return testKey(id, keys::audioPlaybackTestDescription, keys::microphoneInteractiveTestDescription);
}

} // namespace ostra
