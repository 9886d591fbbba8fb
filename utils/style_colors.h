// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// Colours inside the values of stylesheet declarations.
namespace ostra::utils {

/// `value` with every colour (#rgb, a colour's name, rgb() and its relatives, palette(), gradients) replaced by `color`.
/// "transparent", colours without opacity, quoted texts and url() stay as they are.
QString withColor(const QString &value, const QString &color);

/// Whether `value` holds a colour that `withColor` would replace.
bool hasColor(const QString &value);

} // namespace ostra::utils
