// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace ostra::utils::style_manager {

/// The text of product_light.qss without its comments, ASCII.
std::string_view productStylesheet();

} // namespace ostra::utils::style_manager
