// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/result_codes.h"
#include "contract/test.h"
#include "contract/test_context.h"

#include <string>
#include <utility>

namespace ostra {

/// A test that, when it fails, names the components that are suspect. Everything else is the wrapped test's own answer.
template <typename T>
class TestWithDeviceHint final : public Test {
public:
    TestWithDeviceHint(const EntityId &id, std::string hint) : Test(id), test_(id), hint_(std::move(hint)) {}

    bool isSupported(SystemComponent *component) override { return test_.isSupported(component); }
    std::uint32_t run(TestContext *context) override;
    bool firstFlag() override { return test_.firstFlag(); }
    bool secondFlag() override { return test_.secondFlag(); }
    std::vector<OpaqueRecord> firstList() override { return test_.firstList(); }
    void setOption(std::string text) override { test_.setOption(std::move(text)); }
    std::vector<OpaqueRecord> secondList() override { return test_.secondList(); }
    bool thirdFlag() override { return test_.thirdFlag(); }
    bool fourthFlag() override { return test_.fourthFlag(); }
    bool configure(ParameterTable table, std::uint64_t value) override { return test_.configure(std::move(table), value); }
    void reset() override { test_.reset(); }

private:
    T test_;
    std::string hint_; // destroyed before the wrapped test
};

/// The hint is the last message and the last progress text of a failure. The context is looked at only then: any other code
/// may come from a context that is null or lacks its services.
template <typename T>
std::uint32_t TestWithDeviceHint<T>::run(TestContext *context)
{
    const std::uint32_t code = test_.run(context);
    if (code != result::failed)
        return code;
    try {
        context->messages()->addMessage(hint_, message_level::note, 0);
        context->reporter()->report(100, hint_);
    } catch (...) {
        // The verdict stands, also where the host cannot take its hint.
    }
    return result::failed;
}

} // namespace ostra
