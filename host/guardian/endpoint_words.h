// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

#include <string>
#include <vector>

namespace host {

/// The descriptions of all active endpoints, with their ids where there is none.
QStringList endpointDescriptions();

/// The descriptions of the endpoints with these ids, in their order; an id stands for itself where nothing better is known.
QStringList describeEndpoints(const std::vector<std::u16string> &ids);

} // namespace host
