// SPDX-License-Identifier: Apache-2.0
#include "tests/report_key.h"

#include "contract/test_context.h"

namespace ostra {

void reportKey(TestContext &context, const std::string &key, std::uint32_t level)
{
    if (ProgressReporter *reporter = context.reporter())
        reporter->report(100, key);
    if (MessageSink *messages = context.messages())
        messages->addMessage(key, level, 0);
}

} // namespace ostra
