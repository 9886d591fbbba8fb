// SPDX-License-Identifier: Apache-2.0
#include "tests/microphone_interactive_test.h"

#include "contract/message_keys.h"
#include "contract/result_codes.h"
#include "tests/report_key.h"

namespace ostra {

bool MicrophoneInteractiveTest::isSupported(SystemComponent * /*component*/) { return false; }

std::uint32_t MicrophoneInteractiveTest::run(TestContext *context)
{
    if (context != nullptr)
        reportKey(*context, keys::deviceNotIdentifiedOrDisconnected, message_level::note);
    return result::cannotBePerformed;
}

} // namespace ostra
