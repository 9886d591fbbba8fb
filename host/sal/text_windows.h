// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace sal {

/// UTF-16 text of `utf8`; every ill-formed byte sequence becomes U+FFFD.
std::wstring toWide(std::string_view utf8);

/// UTF-8 text of `wide`; every lone surrogate becomes U+FFFD.
std::string toUtf8(std::wstring_view wide);

} // namespace sal
