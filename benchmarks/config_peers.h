// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

namespace bench {

/// Another reader of configuration files.
struct ConfigPeer {
    std::string name;
    void (*read)(const std::string &file) = nullptr; ///< reads the whole file into a table of its own
    double limit = 0;                                ///< what our reader may take of its time
    bool takesHugeLines = false;                     ///< is to be compared on a line of megabytes as well
};

/// Qt's, and inih on Linux, filling the table of sections and keys that our reader fills.
std::vector<ConfigPeer> configPeers();

} // namespace bench
