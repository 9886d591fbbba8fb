// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace host {

/// How the program ends. Where a number is also a result code of a test, both mean the same.
enum class ExitCode {
    success = 0,
    usage = 2,             ///< the command line asks for something that does not exist
    cannotBePerformed = 3, ///< the chosen tests need the graphical host
    notCompleted = 4,      ///< the output could not be written, or memory ran out
    noModule = 6,          ///< the module cannot be loaded
};

} // namespace host
