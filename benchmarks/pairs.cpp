// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/pairs.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <utility>

namespace bench {

double quantile(std::vector<double> values, double fraction)
{
    std::sort(values.begin(), values.end());
    const double position = fraction * static_cast<double>(values.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    const std::size_t above = std::min(below + 1, values.size() - 1);
    return std::lerp(values[below], values[above], position - static_cast<double>(below));
}

Comparison compareLists(const std::vector<double> &subject, const std::vector<double> &peer)
{
    std::vector<double> ratios;
    for (std::size_t pair = 0; pair < subject.size(); ++pair)
        ratios.push_back(subject[pair] / peer[pair]);
    return {median(subject), median(peer), median(ratios), quantile(ratios, 0.25), quantile(ratios, 0.75), subject.size()};
}

Comparison compare(const Measurement &subject, const Measurement &peer, std::size_t pairCount)
{
    std::vector<double> subjects;
    std::vector<double> peers;
    subject();
    peer();
    for (std::size_t pair = 0; pair < pairCount; ++pair) {
        const bool isPeerFirst = pair % 2 != 0;
        if (isPeerFirst)
            peers.push_back(peer());
        subjects.push_back(subject());
        if (!isPeerFirst)
            peers.push_back(peer());
    }
    return compareLists(subjects, peers);
}

double secondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double fastest(const Measurement &measurement)
{
    double least = measurement();
    for (int time = 1; time < 5; ++time)
        least = std::min(least, measurement());
    return least;
}

void print(const Row &row)
{
    std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", row.figure.c_str(), row.peer.c_str(), row.goal.c_str(), row.measured.c_str(),
                row.spread.c_str(),
                row.goal == "-" ? "noted"
                : row.isMet     ? "met"
                                : "missed");
    std::fflush(stdout);
}

Row ratioRow(std::string figure, std::string peer, double limit, const Comparison &comparison, Unit unit)
{
    return {std::move(figure),
            std::move(peer),
            "≤ " + shown(limit),
            shown(comparison.ratio),
            shown(comparison.low) + "–" + shown(comparison.high) + " in " + std::to_string(comparison.pairCount) + " pairs; " +
                shown(comparison.subject * unit.factor) + " / " + shown(comparison.peer * unit.factor) + " " + unit.name,
            comparison.ratio <= limit};
}

Row withoutGoal(Row row)
{
    row.goal = "-";
    return row;
}

std::string shown(double value)
{
    const double size = std::fabs(value);
    const int decimals = size >= 100 ? 0 : size >= 10 ? 1 : size >= 1 ? 2 : 3;
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace bench
