// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/config_peers.h"

#include "benchmarks/inih_reader.h"
#include "benchmarks/qt_settings_reader.h"

namespace bench {

namespace {

void readByInih(const std::string &file)
{
    ostra::utils::IniConfiguration configuration;
    readWithInih(file, configuration);
}

} // namespace

std::vector<ConfigPeer> configPeers()
{
    return {{"QSettings", &readWithQtSettings, 0.8, true}, {"inih, the same table", &readByInih, 1.0, false}};
}

} // namespace bench
