// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/test.h"

namespace ostra {

/// Records through a microphone, plays the recording back and asks whether it was the same sound.
class MicrophoneInteractiveTest final : public Test {
public:
    using Test::Test;

    /// False until the dialog exists: a test that cannot run must not look as if it could.
    bool isSupported(SystemComponent *component) override;
    /// Answers "cannot be performed" with the key of an unidentified device; nothing is played, recorded or judged.
    std::uint32_t run(TestContext *context) override;
    bool firstFlag() override { return true; }
};

} // namespace ostra
