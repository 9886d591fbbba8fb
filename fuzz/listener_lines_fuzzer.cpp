// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "host/operator/listener_line.h"

#include <cmath>

using namespace host;
using fuzz::require;
using Kind = ListenerLine::Kind;

namespace {

bool isNothing(const HeardEvent &event)
{
    return event.startMs == 0 && !event.digit && event.score == 0 && event.margin == 0 && event.levelDbfs == 0 &&
           !event.isClipped;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    HeardLog log;
    const QList<QByteArray> lines = fuzz::bytes(data, byteCount).split('\n');
    for (const QByteArray &text : lines) {
        const ListenerLine line = readListenerLine(text);
        const HeardEvent &heard = line.sound;
        require(line.kind == Kind::sound || line.kind == Kind::level || isNothing(heard), "other lines carry no sound");
        require(heard.startMs >= 0 && heard.startMs <= qint64{1} << 53, "moments can be reckoned with");
        require(!heard.digit || (*heard.digit >= 0 && *heard.digit <= 9), "a digit is a digit");
        require(std::isfinite(heard.levelDbfs) && std::isfinite(heard.score) && std::isfinite(heard.margin),
                "numbers are finite");
        if (line.kind == Kind::sound)
            log.addSound(heard);
    }
    const QList<HeardEvent> sounds = log.soundsBetween(0, qint64{1} << 53);
    require(std::is_sorted(sounds.begin(), sounds.end(),
                           [](const HeardEvent &one, const HeardEvent &other) { return one.startMs < other.startMs; }),
            "sounds come in their order");
    return 0;
}
