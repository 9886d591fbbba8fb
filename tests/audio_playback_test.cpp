// SPDX-License-Identifier: Apache-2.0
#include "tests/audio_playback_test.h"

#include "audio/audio_component.h"
#include "audio/clip_files.h"
#include "audio/executable_folder.h"
#include "contract/event_mask.h"
#include "contract/input_request.h"
#include "contract/message_keys.h"
#include "contract/result_codes.h"
#include "contract/test_context.h"
#include "tests/playback_widget_wrapper.h"
#include "tests/report_key.h"
#include "utils/language.h"

namespace ostra {

namespace {

constexpr std::int32_t notAsked = 0;
constexpr std::int32_t accepted = 1;
constexpr std::int32_t canceledByEvent = 2;

std::int32_t askInstructions(TestContext &context)
{
    InputRequest request(keys::audioPlaybackTest, "AUDIO_PLAYBACK_TEST_INSTRUCTIONS", 1, 1, 1);
    context.reporter()->requestInput(&request);
    return static_cast<std::int32_t>(request.answer);
}

std::int32_t runDialog(TestContext &context, audio::AudioComponent &component)
{
    AudioPlayBackTestWidgetWrapper<AudioPlaybackTestView> wrapper(&context, &component);
    InputRequest request("kTkAdvancedTestInputTitle", "", 1, 3, 0);
    request.widget = &wrapper;
    context.reporter()->requestInput(&request);
    return wrapper.outcome();
}

std::uint32_t cancel(TestContext &context, audio::AudioComponent &component)
{
    component.setInstructionsState(canceledByEvent);
    reportKey(context, keys::testCanceledByEvent, message_level::note);
    return result::notCompleted;
}

// Without instructions there is no test; the next run asks again.
std::uint32_t decline(TestContext &context, audio::AudioComponent &component)
{
    component.setInstructionsState(notAsked);
    context.reporter()->report(100, "");
    return result::notCompleted;
}

std::uint32_t conclude(TestContext &context, audio::AudioComponent &component, std::int32_t outcome)
{
    switch (outcome) {
    case 0:
        return result::passed;
    case 1:
        reportKey(context, keys::audioPlaybackTestWrongSequence, message_level::error);
        return result::failed;
    case 2:
        reportKey(context, keys::userDidNotReportSound, message_level::error);
        return result::failed;
    case 4: // no defect of the device; the dialog of today ends with 3 instead
        reportKey(context, keys::audioDeviceCouldNotBeAccessed, message_level::error);
        return result::notCompleted;
    case 5:
        return cancel(context, component);
    default:
        return result::notCompleted;
    }
}

} // namespace

bool AudioPlaybackTest::isSupported(SystemComponent *component)
{
    try {
        return audio::allClipsPresent(audio::executableFolder(), utils::currentLanguage()) &&
               dynamic_cast<audio::AudioComponent *>(component) != nullptr;
    } catch (...) {
        return false; // no memory for the paths
    }
}

std::uint32_t AudioPlaybackTest::run(TestContext *context)
{
    try {
        if (!isContextValid(context))
            return result::invalidCall;
        context->reporter()->report(0, "");
        if (isSupported(context->component()))
            return execute(context);
        reportKey(*context, keys::deviceNotIdentifiedOrDisconnected, message_level::note);
        return result::cannotBePerformed;
    } catch (...) {
        return result::notCompleted; // a host's service failed: no verdict on the device
    }
}

bool AudioPlaybackTest::isCancelingEvent(std::uint32_t flags) { return (flags & cancelingEventMask) != 0; }

bool AudioPlaybackTest::isContextValid(TestContext *context)
{
    return context != nullptr && context->reporter() != nullptr && context->messages() != nullptr &&
           context->events() != nullptr && context->component() != nullptr;
}

std::uint32_t AudioPlaybackTest::execute(TestContext *context)
{
    auto *component = dynamic_cast<audio::AudioComponent *>(context->component());
    if (component == nullptr)
        return result::invalidCall;
    if (isCancelingEvent(context->events()->pendingEvents()))
        return cancel(*context, *component);
    if (component->instructionsState() == notAsked)
        component->setInstructionsState(askInstructions(*context));
    if (isCancelingEvent(context->events()->pendingEvents()))
        return cancel(*context, *component);
    if (!context->reporter()->canReceiveInput())
        return result::cannotBePerformed;
    if (component->instructionsState() != accepted)
        return decline(*context, *component);
    return conclude(*context, *component, runDialog(*context, *component));
}

} // namespace ostra
