// SPDX-License-Identifier: Apache-2.0
#include "views/system_events.h"

#include "contract/event_mask.h"
#include "contract/test_context.h"

namespace ostra {

EventAnswer askForEvents(EventSource *source) noexcept
try {
    if (source == nullptr || (source->pendingEvents() & cancelingEventMask) == 0)
        return EventAnswer::goOn;
    return EventAnswer::cancel;
} catch (...) {
    return EventAnswer::unknown;
}

EventAnswer askForEvents(TestContext *context) noexcept
try {
    return context == nullptr ? EventAnswer::goOn : askForEvents(context->events());
} catch (...) {
    return EventAnswer::unknown;
}

} // namespace ostra
