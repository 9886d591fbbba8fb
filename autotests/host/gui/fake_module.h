// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/module_interface.h"
#include "contract/result_codes.h"
#include "contract/test_context.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// A module of the test's own behind the contract: its devices come and go as the test wants, and its tests do what it says.
class FakeModule {
public:
    using Body = std::function<std::uint32_t(ostra::TestContext &)>;

    FakeModule()
        : playback_(ostra::identities::audioPlaybackTest, playback),
          microphone_(ostra::identities::microphoneInteractiveTest, microphone),
          diagnostic_(ostra::identities::audioDiagnostic, {&playback_, &microphone_}), manager_(names, refreshCount),
          interface_({&diagnostic_}, &resource_, &manager_, nullptr)
    {}

    ostra::ModuleInterface &interface() { return interface_; }

    std::vector<std::string> names{"Speakers", "Headphones"}; ///< of the devices that the next refresh finds
    int refreshCount = 0;
    Body playback = [](ostra::TestContext &) { return ostra::result::passed; };
    Body microphone = [](ostra::TestContext &) { return ostra::result::passed; };

private:
    class Component final : public ostra::SystemComponent {
    public:
        explicit Component(const std::string &name) : SystemComponent(name)
        {
            setId(name);
            properties() = {{"UDI", name}, {"NUMBER_OF_CHANNELS", "2"}, {"SAMPLE_RATE", "48000"}, {"DRIVER_NAME", "fake"}};
        }
        void *reserved4() override { return nullptr; }
        bool reserved5() override { return true; }
        bool reserved6() override { return true; }
        void reserved7() override {}
        bool reserved8() override { return true; }
        void reserved9() override {}
    };

    class Manager final : public ostra::SystemComponentManager {
    public:
        Manager(const std::vector<std::string> &names, int &refreshCount)
            : SystemComponentManager(ostra::identities::componentManager), names_(names), refreshCount_(refreshCount)
        {}
        bool hasComponents() override { return !names_.empty(); }
        ostra::SystemComponent *hintedComponentAt(std::uint32_t index) override { return componentAt(index); }
        void refresh() override
        {
            ++refreshCount_;
            components().clear();
            owned_.clear();
            for (const std::string &name : names_) {
                owned_.push_back(std::make_unique<Component>(name));
                components().push_back(owned_.back().get());
            }
        }

    private:
        const std::vector<std::string> &names_;
        int &refreshCount_;
        std::vector<std::unique_ptr<Component>> owned_;
    };

    class Test final : public ostra::Test {
    public:
        Test(const ostra::EntityId &id, const Body &body) : ostra::Test(id), body_(body) {}
        bool isSupported(ostra::SystemComponent *component) override { return component != nullptr; }
        std::uint32_t run(ostra::TestContext *context) override { return body_(*context); }
        bool firstFlag() override { return true; }

    private:
        const Body &body_;
    };

    class Resource final : public ostra::Resource {
    public:
        Resource() : ostra::Resource(ostra::identities::resource)
        {
            addTestNames(ostra::identities::audioPlaybackTest, {"p", "audio_playback_test"});
            addTestNames(ostra::identities::microphoneInteractiveTest, {"m", "microphone_interactive_test"});
        }
        std::string diagnosticName(ostra::EntityId /*id*/) const override { return "QUICK_AUDIO"; }
        std::string testName(ostra::EntityId id) const override
        {
            return id == ostra::identities::audioPlaybackTest ? "AUDIO_PLAYBACK_TEST" : "MICROPHONE_INTERACTIVE_TEST";
        }
        std::string diagnosticDescription(ostra::EntityId /*id*/) const override { return "QUICK_AUDIO_TESTS_TOOLTIP"; }
        std::string testDescription(ostra::EntityId id) const override { return testName(id) + "_DESCRIPTION"; }
    };

    Test playback_;
    Test microphone_;
    ostra::Diagnostic diagnostic_;
    Resource resource_;
    Manager manager_;
    ostra::ModuleInterface interface_;
};
