// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>

namespace ostra {

class TestContext;

/// Ends a run with `key`: progress 100 with the key as text, then the key as a message at `level`. Services that the context
/// lacks are left out.
void reportKey(TestContext &context, const std::string &key, std::uint32_t level);

} // namespace ostra
