// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/contrast_surface.h"
#include "utils/style_rules.h"

namespace ostra::utils {

/// Adds what the module's dialogs need in high contrast, whatever the product's stylesheet says or leaves out: the pairs of the
/// widget classes, the states of push buttons with their focus frames, and rules by object name.
void addDialogRules(StyleRules &rules, const ContrastColors &colors);

} // namespace ostra::utils
