// SPDX-License-Identifier: Apache-2.0
// Lists the output devices as a program without our module would, and prints the seconds that it took and their number.
#include "benchmarks/bare_listing.h"
#include "benchmarks/pairs.h"

#include <chrono>
#include <cstdio>
#include <string>

/// refresh_bare SDL_LIBRARY DRIVER MICROSECONDS: how long each device stays open.
int main(int argumentCount, char **arguments)
{
    if (argumentCount != 4)
        return 2;
    const std::chrono::microseconds held(std::stoi(arguments[3]));
    int count = 0;
    const double seconds = bench::secondsOf([&] { count = bench::BareListing(arguments[1], arguments[2]).openAll(held); });
    std::printf("%.6f %d\n", seconds, count);
    return 0;
}
