// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

/// WAVE files that lie, are cut off or ask for what no device does: what a damaged installation may hold.
namespace hostile_waves {

struct File {
    const char *name;
    QByteArray content;
    std::optional<bool> isAccepted; ///< by SDL 2.26.5, measured; none: where four gigabytes can be had
};

/// All of them, each below 4096 bytes.
std::vector<File> files();

} // namespace hostile_waves
