// SPDX-License-Identifier: Apache-2.0
#include "host/core/verdict.h"

#include "contract/result_codes.h"

#include <algorithm>

namespace host {

Verdict verdictOf(const RunRecord &record)
{
    if (record.wasStopped)
        return Verdict::stopped;
    const bool hasError = std::any_of(record.messages.begin(), record.messages.end(),
                                      [](const RunMessage &message) { return message.level == ostra::message_level::error; });
    switch (record.code) {
    case ostra::result::passed:
        return hasError ? Verdict::notCompleted : Verdict::passed;
    case ostra::result::failed:
        return Verdict::failed;
    case ostra::result::cannotBePerformed:
        return Verdict::cannotBePerformed;
    case ostra::result::invalidCall:
        return Verdict::invalidCall;
    default:
        return Verdict::notCompleted;
    }
}

std::uint32_t codeOf(Verdict verdict) noexcept
{
    switch (verdict) {
    case Verdict::passed:
        return ostra::result::passed;
    case Verdict::failed:
        return ostra::result::failed;
    case Verdict::cannotBePerformed:
        return ostra::result::cannotBePerformed;
    case Verdict::invalidCall:
        return ostra::result::invalidCall;
    case Verdict::notCompleted:
    case Verdict::stopped:
        break;
    }
    return ostra::result::notCompleted;
}

const char *verdictKey(Verdict verdict) noexcept
{
    switch (verdict) {
    case Verdict::passed:
        return "VERDICT_PASSED";
    case Verdict::failed:
        return "VERDICT_FAILED";
    case Verdict::cannotBePerformed:
        return "VERDICT_CANNOT_BE_PERFORMED";
    case Verdict::invalidCall:
        return "VERDICT_INVALID_CALL";
    case Verdict::stopped:
        return "VERDICT_STOPPED";
    case Verdict::notCompleted:
        break;
    }
    return "VERDICT_NOT_COMPLETED";
}

} // namespace host
