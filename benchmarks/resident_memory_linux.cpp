// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/resident_memory.h"

#include <fstream>
#include <limits>
#include <string>

namespace bench {

double residentKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes)
            return kilobytes;
        status.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return 0;
}

} // namespace bench
