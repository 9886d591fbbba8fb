// SPDX-License-Identifier: Apache-2.0
// Laid out, never linked: one class per boundary class, so that the compiler has to write each table down.
#include "contract/abstract_widget_wrapper.h"
#include "contract/diagnostic.h"
#include "contract/event_mask.h"
#include "contract/exports.h"
#include "contract/input_request.h"
#include "contract/message_keys.h"
#include "contract/module_interface.h"
#include "contract/product_version.h"
#include "contract/property_keys.h"
#include "contract/resource.h"
#include "contract/result_codes.h"
#include "contract/sal.h"
#include "contract/style_manager.h"
#include "contract/system_component.h"
#include "contract/system_component_manager.h"
#include "contract/test.h"
#include "contract/test_context.h"
#include "tests/audio_playback_test.h"

#include <cstdint>
#include <string>
#include <vector>

namespace {

class LaidOutModuleInterface final : public ostra::ModuleInterface {
    using ModuleInterface::ModuleInterface;
};

class LaidOutProductVersion final : public ostra::ProductVersion {
    using ProductVersion::ProductVersion;
};

class LaidOutDiagnostic final : public ostra::Diagnostic {
    using Diagnostic::Diagnostic;
};

class LaidOutTest final : public ostra::Test {
    using Test::Test;
    bool isSupported(ostra::SystemComponent *component) override { return component != nullptr; }
    std::uint32_t run(ostra::TestContext *context) override { return context != nullptr ? 0U : 6U; }
    bool firstFlag() override { return true; }
};

class LaidOutPlaybackTest final : public ostra::AudioPlaybackTest {
    using AudioPlaybackTest::AudioPlaybackTest;
};

class LaidOutResource final : public ostra::Resource {
    using Resource::Resource;
    std::string diagnosticName(ostra::EntityId) const override { return {}; }
    std::string testName(ostra::EntityId) const override { return {}; }
    std::string diagnosticDescription(ostra::EntityId) const override { return {}; }
    std::string testDescription(ostra::EntityId) const override { return {}; }
};

class LaidOutManager final : public ostra::SystemComponentManager {
    using SystemComponentManager::SystemComponentManager;
    bool hasComponents() override { return false; }
    ostra::SystemComponent *hintedComponentAt(std::uint32_t) override { return nullptr; }
    void refresh() override {}
};

class LaidOutComponent final : public ostra::SystemComponent {
    using SystemComponent::SystemComponent;
    void *reserved4() override { return nullptr; }
    bool reserved5() override { return true; }
    bool reserved6() override { return true; }
    void reserved7() override {}
    bool reserved8() override { return true; }
    void reserved9() override {}
};

class LaidOutWrapper final : public ostra::AbstractWidgetWrapper {
    int exec(QWidget *, QObject *) override { return 0; }
};

class LaidOutRequest final : public ostra::InputRequest {
    using InputRequest::InputRequest;
};

class LaidOutContext final : public ostra::TestContext {
    ostra::SystemComponent *component() override { return nullptr; }
    ostra::MessageSink *messages() override { return nullptr; }
    ostra::ProgressReporter *reporter() override { return nullptr; }
    void reserved4() override {}
    bool continueOnOutcome() override { return false; }
    ostra::EventSource *events() override { return nullptr; }
};

class LaidOutSink final : public ostra::MessageSink {
    void addMessage(std::string, std::uint32_t, std::uint32_t) override {}
};

class LaidOutReporter final : public ostra::ProgressReporter {
    void report(std::uint32_t, std::string) override {}
    void requestInput(ostra::InputRequest *) override {}
    void reserved3() override {}
    bool canReceiveInput() override { return false; }
};

class LaidOutEvents final : public ostra::EventSource {
    std::uint32_t pendingEvents() override { return 0; }
};

class LaidOutCim final : public sal::Cim {
    std::int32_t query(std::vector<sal::CimRow> &, const std::string &, const std::string &, std::uint32_t, const char *const *,
                       const std::string &) override
    {
        return 0;
    }
};

class LaidOutNumberHandler final : public sal::NumberHandler {
    std::string toText(std::int64_t) override { return {}; }
};

class LaidOutTimer final : public sal::Timer {
    std::uint64_t ticks() override { return 0; }
};

class LaidOutLoader final : public sal::ModuleLoader {
    void *load(const std::string &, std::uint32_t) override { return nullptr; }
    void release(void *) override {}
};

class LaidOutTemporaryPath final : public sal::TemporaryPath {
    std::string path() override { return {}; }
};

class LaidOutStyleManager final : public ostra::utils::style_manager::StyleManager {
    std::string Stylesheet() const override { return {}; }
};

constexpr ostra::EntityId someone{1, 2, 3};

} // namespace

void layOutObjectsOfTheModule()
{
    LaidOutModuleInterface({}, nullptr, nullptr, nullptr);
    LaidOutProductVersion(1, 2, 3, 4);
    LaidOutDiagnostic(someone, {});
    LaidOutTest{someone};
    LaidOutPlaybackTest{someone};
    LaidOutResource{someone};
    LaidOutManager{someone};
    LaidOutComponent("");
    LaidOutWrapper{};
    LaidOutRequest("", "", 1, 2, 3);
}

void layOutObjectsOfTheHost()
{
    LaidOutContext{};
    LaidOutSink{};
    LaidOutReporter{};
    LaidOutEvents{};
    LaidOutCim{};
    LaidOutNumberHandler{};
    LaidOutTimer{};
    LaidOutLoader{};
    LaidOutTemporaryPath{};
    LaidOutStyleManager{};
}
