// SPDX-License-Identifier: Apache-2.0
#include "host/measure/dot_product.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <numeric>

namespace measure {

float dotProduct(std::span<const float> left, std::span<const float> right)
{
    assert(left.size() == right.size());
    std::array<float, 8> sums{};
    std::size_t index = 0;
    for (; index + sums.size() <= left.size(); index += sums.size()) {
        for (std::size_t lane = 0; lane < sums.size(); ++lane)
            sums[lane] += left[index + lane] * right[index + lane];
    }
    float sum = std::accumulate(sums.begin(), sums.end(), 0.0F);
    for (; index < left.size(); ++index)
        sum += left[index] * right[index];
    return sum;
}

} // namespace measure
