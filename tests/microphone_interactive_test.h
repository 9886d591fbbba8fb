// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/test.h"

namespace ostra {

/// Records through a microphone, plays the recording back and asks whether it was the same sound.
class MicrophoneInteractiveTest final : public Test {
public:
    using Test::Test;

    /// For an output device of this module while the machine has a microphone.
    bool isSupported(SystemComponent *component) override;
    /// Answers 0, 1, 3 or 4. Every endpoint is at full volume while the dialog runs. A context that lacks a service ends the
    /// run with 4 and nothing said. Throws nothing.
    std::uint32_t run(TestContext *context) override;
    bool firstFlag() override { return true; }
};

} // namespace ostra
