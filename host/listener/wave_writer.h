// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFile>
#include <QString>

#include <cstdint>
#include <span>

namespace host {

/// Keeps a capture in a RIFF/WAVE file: 16-bit PCM at `captureRate`, two channels. The file is whole after every `append`,
/// whenever the process ends. One thread.
class WaveWriter {
public:
    /// Makes the file or empties it. False with `errorText()`.
    bool open(const QString &file);
    bool isOpen() const { return file_.isOpen(); }
    const QString &errorText() const { return errorText_; }

    /// Interleaved frames; what is beyond full scale is cut off. Where the disk is full, or beyond 2 GiB, the file keeps what
    /// it has: false once and for all.
    bool append(std::span<const float> interleaved);

private:
    bool writeLengths();

    QFile file_;
    std::uint32_t dataByteCount_ = 0;
    bool isFull_ = false;
    QString errorText_;
};

} // namespace host
