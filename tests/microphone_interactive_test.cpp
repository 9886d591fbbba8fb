// SPDX-License-Identifier: Apache-2.0
#include "tests/microphone_interactive_test.h"

#include "audio/audio_component.h"
#include "audio/audio_devices.h"
#include "audio/volume_guard.h"
#include "contract/event_mask.h"
#include "contract/input_request.h"
#include "contract/message_keys.h"
#include "contract/result_codes.h"
#include "contract/test_context.h"
#include "tests/audio_widget_wrapper.h"
#include "tests/report_key.h"
#include "views/interaction_dialog.h"

#include <memory>
#include <string>
#include <utility>

namespace ostra {

namespace {

using SharedWrapper = std::shared_ptr<AudioWidgetWrapper>;

constexpr std::int32_t fullVolumePercent = 100;

// The host's answers to a question with the options 5, 2, 0.
constexpr std::uint32_t answerYes = 3;
constexpr std::uint32_t answerNo = 4;

/// Keeps the dialog's wrapper alive for as long as the host may use it.
class DialogRequest final : public InputRequest {
public:
    explicit DialogRequest(SharedWrapper wrapper) : InputRequest({}, {}, 1, 3, 0), wrapper_(std::move(wrapper))
    {
        widget = wrapper_.get();
    }

private:
    SharedWrapper wrapper_;
};

bool hasServices(TestContext &context)
{
    return context.reporter() != nullptr && context.messages() != nullptr && context.events() != nullptr;
}

bool isCancelledByEvent(TestContext &context) { return (context.events()->pendingEvents() & cancelingEventMask) != 0; }

std::uint32_t endWith(TestContext &context, const char *key, std::uint32_t code)
{
    reportKey(context, key, message_level::note);
    return code;
}

QString deviceText(TestContext &context)
{
    const SystemComponent *component = context.component();
    return component == nullptr ? QString() : QString::fromStdString(component->name());
}

std::uint32_t resultOfDialog(TestContext &context, const AudioWidgetWrapper &wrapper)
{
    const std::int32_t outcome = wrapper.outcome();
    if (outcome != dialog_result::cancelled && outcome != dialog_result::closed && !context.continueOnOutcome())
        return result::passed;
    if (wrapper.deviceLost())
        return endWith(context, keys::deviceNotIdentifiedOrDisconnected, result::notCompleted);
    if (wrapper.internalError())
        return endWith(context, keys::internalError, result::notCompleted);
    if (context.continueOnOutcome())
        context.reporter()->report(100, "");
    return result::notCompleted;
}

std::uint32_t askWhatWasHeard(TestContext &context, std::uint32_t unanswered)
{
    InputRequest question(keys::microphoneInteractiveTest, "DID_YOU_HEAR_THE_SAME_SOUND_YOU_RECORDED", 5, 2, 0);
    context.reporter()->requestInput(&question);
    if (question.answer == answerYes)
        return result::passed;
    return question.answer == answerNo ? result::failed : unanswered;
}

// The request goes first when this returns, then the last reference to the wrapper with its dialog.
std::uint32_t runDialog(TestContext &context)
{
    const SharedWrapper wrapper = makeAudioWidgetWrapper(deviceText(context), context);
    DialogRequest request(wrapper);
    context.reporter()->requestInput(&request);
    if (isCancelledByEvent(context)) {
        wrapper->closeDialog();
        return endWith(context, keys::testCanceledByEvent, result::notCompleted);
    }
    std::uint32_t code = resultOfDialog(context, *wrapper);
    wrapper->closeDialog();
    if (wrapper->outcome() == dialog_result::heard)
        code = askWhatWasHeard(context, code);
    context.reporter()->report(100, "");
    return code;
}

std::uint32_t runTest(TestContext &context)
{
    if (isCancelledByEvent(context))
        return endWith(context, keys::testCanceledByEvent, result::notCompleted);
    if (!context.reporter()->canReceiveInput())
        return endWith(context, keys::deviceCannotReceiveInput, result::cannotBePerformed);
    if (!audio::hasAudioDevices(true))
        return endWith(context, keys::noInputDevice, result::notCompleted);
    const audio::VolumeGuard volume = audio::makeVolumeGuard(fullVolumePercent);
    return runDialog(context);
}

} // namespace

bool MicrophoneInteractiveTest::isSupported(SystemComponent *component)
{
    return dynamic_cast<audio::AudioComponent *>(component) != nullptr && audio::hasAudioDevices(true);
}

std::uint32_t MicrophoneInteractiveTest::run(TestContext *context)
{
    try {
        return context != nullptr && hasServices(*context) ? runTest(*context) : result::notCompleted;
    } catch (...) { // out of memory, or a host's service failed: no verdict on the device
        return result::notCompleted;
    }
}

} // namespace ostra
