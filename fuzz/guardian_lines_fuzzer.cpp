// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "host/guardian/guardian_message.h"

using namespace host;
using fuzz::require;

namespace {

void checkMessage(const QByteArray &line)
{
    const auto message = fromLine(line);
    if (!message)
        return;
    const QByteArray written = toLine(*message);
    require(written.count('\n') == 1 && written.endsWith('\n'), "a message is one line");
    const auto again = fromLine(written);
    require(again && again->kind == message->kind && again->text == message->text, "a message survives its way");
}

// The same command, however the pipe cuts it: byte by byte, in two pieces, whole.
void checkCommand(const QByteArray &bytes)
{
    const bool isExpected = bytes.startsWith(finishCommand) || bytes.contains(QByteArray("\n") + finishCommand);
    CommandReader whole;
    require(whole.feed(bytes) == isExpected, "the command is a whole line");
    CommandReader halves;
    const qsizetype half = bytes.size() / 2;
    require((halves.feed(bytes.first(half)) || halves.feed(bytes.sliced(half))) == isExpected, "pieces make no difference");
    CommandReader single;
    bool isFound = false;
    for (qsizetype at = 0; at < bytes.size() && !isFound; ++at)
        isFound = single.feed(bytes.sliced(at, 1));
    require(isFound == isExpected, "single bytes make no difference");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    const QByteArray input = fuzz::bytes(data, byteCount);
    checkMessage(input);
    checkCommand(input);
    return 0;
}
