// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/config_peers.h"

#include "benchmarks/qt_settings_reader.h"

namespace bench {

std::vector<ConfigPeer> configPeers() { return {{"QSettings", &readWithQtSettings, 0.8, true}}; }

} // namespace bench
