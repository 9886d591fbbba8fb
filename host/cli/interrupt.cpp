// SPDX-License-Identifier: Apache-2.0
#include "host/cli/interrupt.h"

namespace host {

namespace {

volatile std::sig_atomic_t caught = 0;

// Windows forgets the handler once it has been called.
extern "C" void noteSignal(int number)
{
    if (caught == 0)
        caught = number;
    std::signal(number, &noteSignal);
}

} // namespace

void catchSignals()
{
    std::signal(SIGINT, &noteSignal);
    std::signal(SIGTERM, &noteSignal);
}

int caughtSignal() noexcept { return caught; }

} // namespace host
