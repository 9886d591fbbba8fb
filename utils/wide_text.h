// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace ostra::utils {

/// UTF-8 of a UTF-16 text, the conversion every wide text of the system goes through.
///
/// The text ends at its first zero character or at the end of the view, whichever comes first; the result carries no
/// terminator of its own. Each unpaired surrogate becomes U+FFFD. Empty when the text is empty or the system cannot
/// convert it. Callable from any thread; nothing but std::bad_alloc leaves it.
std::string toUtf8(std::u16string_view text);

} // namespace ostra::utils
