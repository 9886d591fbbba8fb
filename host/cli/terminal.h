// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>

namespace host {

/// The process's standard streams as the operating system sees them. While it lives, what is written to them arrives byte for
/// byte, and a terminal behind them reads UTF-8; its end gives a terminal its own settings back. One at a time, main thread.
class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    /// Whether standard output is a terminal that understands ANSI sequences.
    bool outputUnderstandsStyles() const;
    /// Whether somebody watches standard error.
    bool errorIsWatched() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

/// Name of the toolkit's platform that needs no display; empty where every session has one.
QString platformWithoutDisplay();

} // namespace host
