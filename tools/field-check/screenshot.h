// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <filesystem>

namespace field_check {

/// The whole screen as a PNG. False when it could not be taken.
bool saveScreenshot(const std::filesystem::path &file);

} // namespace field_check
