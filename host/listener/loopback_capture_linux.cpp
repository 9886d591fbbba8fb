// SPDX-License-Identifier: Apache-2.0
#include "host/listener/loopback_capture.h"

namespace host {

// Here each output has a monitor among the sources, and the sound library captures it.
class LoopbackCapture::Worker {};

LoopbackCapture::LoopbackCapture() = default;
LoopbackCapture::~LoopbackCapture() = default;

QStringList LoopbackCapture::devices() { return {}; }

bool LoopbackCapture::open(const QString & /*device*/, BlockRing & /*ring*/)
{
    errorText_ = QStringLiteral("this system has monitors instead");
    return false;
}

bool LoopbackCapture::openEndpoint(const std::u16string & /*id*/, BlockRing &ring) { return open({}, ring); }

int LoopbackCapture::channelCount() const { return 0; }

bool LoopbackCapture::isLost() const { return false; }

} // namespace host
