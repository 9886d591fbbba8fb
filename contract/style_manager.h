// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace ostra::utils::style_manager {

/// The product's shared style library, imported by the module. GUI thread.
class StyleManager {
public:
    /// The process-wide manager; the caller never frees it. Null when the host has no style.
    static StyleManager *instance();

    virtual ~StyleManager() = default; // slot 0
    /// Slot 1. The product stylesheet, UTF-8.
    virtual std::string Stylesheet() const = 0;
};

} // namespace ostra::utils::style_manager
