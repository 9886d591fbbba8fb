// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace host {

/// docs/report.schema.json, as it was when the program was built.
std::string_view reportSchemaText();

} // namespace host
