// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Two things measured alternately in one run. Times of a shared machine mean nothing by themselves; what happens to one of the
/// pair happens to the other a moment later, so their ratio stands.
namespace bench {

/// One measurement: what it took, in any unit that both of a pair share.
using Measurement = std::function<double()>;

constexpr std::size_t usualPairCount = 15;

/// What a series of pairs says. Medians and quartiles.
struct Comparison {
    double subject = 0;
    double peer = 0;
    double ratio = 0; ///< of each pair, then the median
    double low = 0;   ///< lower quartile of the pairs' ratios
    double high = 0;  ///< upper quartile
    std::size_t pairCount = 0;
};

/// The value in the middle, or at another fraction of the sorted values. Not for an empty list.
double quantile(std::vector<double> values, double fraction);
inline double median(std::vector<double> values) { return quantile(std::move(values), 0.5); }

/// The pairs of two lists of one length.
Comparison compareLists(const std::vector<double> &subject, const std::vector<double> &peer);

/// Measures both once unseen, then `pairCount` pairs, each second pair the other way round.
Comparison compare(const Measurement &subject, const Measurement &peer, std::size_t pairCount = usualPairCount);

/// Seconds that `work` takes.
double secondsOf(const std::function<void()> &work);

/// The least that five measurements say: what else the machine did meanwhile can only add to it.
double fastest(const Measurement &measurement);

/// A line of the table of figures.
struct Row {
    std::string figure;
    std::string peer;     ///< what it was measured against, or the limit
    std::string goal;     ///< such as "≤ 1.05"; "-" for what is only to be known
    std::string measured; ///< the ratio, or a value where there is no peer
    std::string spread;   ///< quartiles and what they are made of
    bool isMet = false;
};

/// Prints a row on standard output, its fields separated by tabs; tools/bench makes the table of it.
void print(const Row &row);

/// The row of a ratio that may reach `limit`. `unit` scales both medians for the reader: {1e3, "ms"} shows seconds as ms.
struct Unit {
    double factor = 1e3;
    const char *name = "ms";
};
Row ratioRow(std::string figure, std::string peer, double limit, const Comparison &comparison, Unit unit = {});

/// The same without a goal.
Row withoutGoal(Row row);

/// A number as the table shows it: three digits that matter.
std::string shown(double value);

} // namespace bench
