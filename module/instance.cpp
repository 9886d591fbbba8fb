// SPDX-License-Identifier: Apache-2.0
#include "module/instance.h"

#include "audio/audio_component_manager.h"
#include "audio/sdl_api.h"
#include "audio/sound_driver.h"
#include "module/audio_module_interface.h"
#include "module/audio_resource.h"
#include "module/device_hints.h"
#include "module/test_with_device_hint.h"
#include "resources/icons.h"
#include "tests/audio_playback_test.h"
#include "tests/microphone_interactive_test.h"
#include "views/register_types.h"

#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace ostra {

namespace {

ParameterTable parameterTable()
{
    ParameterTable table;
    table.emplace(0U, "0 - 2");
    table.emplace(1U, "");
    table.emplace(2U, "");
    return table;
}

// What the dialogs look up by name. Needs no application object: a command-line host has none that could show a window.
void prepareDialogs()
{
    initIcons();
    registerViewTypes();
}

void startSoundLibrary()
{
    audio::sdl().setEnvironment("SDL_AUDIODRIVER", audio::soundDriverName(), 1);
    // Not checked by design: without sound there are no devices, and every caller copes with that.
    if (audio::canStartSoundLibrary())
        audio::sdl().initSubSystem(SDL_INIT_AUDIO);
}

void destroyTests(const Diagnostic &diagnostic)
{
    for (std::uint32_t index = 0; index < diagnostic.testCount(); ++index)
        delete diagnostic.testAt(index);
}

void destroyDiagnostics(const ModuleInterface &instance)
{
    for (std::uint32_t index = 0; index < instance.diagnosticCount(); ++index) {
        const Diagnostic *diagnostic = instance.diagnosticAt(index);
        if (diagnostic == nullptr)
            continue;
        destroyTests(*diagnostic);
        delete diagnostic;
    }
}

} // namespace

ModuleInterface *buildInstance()
{
    prepareDialogs();
    std::unique_ptr<Test> playback =
        std::make_unique<TestWithDeviceHint<AudioPlaybackTest>>(identities::audioPlaybackTest, playbackHint());
    std::unique_ptr<Test> microphone = std::make_unique<TestWithDeviceHint<MicrophoneInteractiveTest>>(
        identities::microphoneInteractiveTest, microphoneHint());
    auto diagnostic =
        std::make_unique<Diagnostic>(identities::audioDiagnostic, std::vector<Test *>{playback.get(), microphone.get()});
    std::vector<Diagnostic *> diagnostics{diagnostic.get()};
    auto resource = std::make_unique<AudioResource>(identities::resource);
    resource->setParameterTable(parameterTable());
    auto manager = std::make_unique<audio::AudioComponentManager>(identities::componentManager);

    std::unique_ptr<ModuleInterface> instance(
        new (std::nothrow) AudioModuleInterface(std::move(diagnostics), resource.get(), manager.get(), nullptr));
    if (!instance)
        return nullptr;
    startSoundLibrary();
    // From here the tear-down of the interface owns them all.
    static_cast<void>(playback.release());
    static_cast<void>(microphone.release());
    static_cast<void>(diagnostic.release());
    static_cast<void>(resource.release());
    static_cast<void>(manager.release());
    return instance.release();
}

void destroyInstance(ModuleInterface *instance)
{
    delete instance->resource();
    delete instance->componentManager();
    destroyDiagnostics(*instance);
    delete instance;
}

} // namespace ostra
