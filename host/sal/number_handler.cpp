// SPDX-License-Identifier: Apache-2.0
#include "host/sal/services.h"

#include <array>
#include <charconv>
#include <limits>

namespace sal {
namespace {

class DecimalNumberHandler final : public NumberHandler {
public:
    std::string toText(std::int64_t number) override
    {
        // All digits, the one that digits10 leaves out, and the sign.
        std::array<char, std::numeric_limits<std::int64_t>::digits10 + 2> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        return {digits.data(), end};
    }
};

} // namespace

NumberHandler &numberHandlerService()
{
    static DecimalNumberHandler service;
    return service;
}

} // namespace sal
