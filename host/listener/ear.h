// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/listener/block_ring.h"

#include <span>

namespace host {

/// What listens to a capture and tells what it finds, in whichever words it was made with. One thread.
class Ear {
public:
    virtual ~Ear() = default;

    /// Interleaved frames at `captureRate`, whose last one arrived at `end`.
    virtual void feed(std::span<const float> interleaved, SteadyTime end) = 0;
    /// Tells what is left at the end of the capture.
    virtual void finish() = 0;
    /// The loudest 50 ms since the last call.
    virtual double takeLoudestDbfs() = 0;
};

} // namespace host
