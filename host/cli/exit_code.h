// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// How the program ends. Where a number is also a result code of a test, both mean the same.
enum class ExitCode {
    success = 0,
    failed = 1,            ///< a test failed, or a clip differs from the shipped one
    usage = 2,             ///< the command line asks for something that does not exist
    cannotBePerformed = 3, ///< the chosen tests need the graphical host, or something is lacking
    notCompleted = 4,      ///< the output could not be written, memory ran out, or a run ended early or without a verdict
    noModule = 6,          ///< the module or the graphical host cannot be used
    interrupted = 130,     ///< by Ctrl-C
    terminated = 143,      ///< by a request to end
};

/// The worse of two codes of runs: 1 > 2 > 6 > 4 > 3 > 0.
ExitCode worseOf(ExitCode one, ExitCode other) noexcept;

/// The code for build tools that follow GNU's conventions: 77 (skipped) for 3, 99 (hard error) for 4 and 6.
int gnuCodeOf(ExitCode code) noexcept;

} // namespace host
