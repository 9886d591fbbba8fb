// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/catalogue.h"

#include <string>
#include <variant>
#include <vector>

namespace host {

/// The module's help text is asked for.
struct HelpRequest {};

/// Tests of one diagnostic, each once, in the order in which they were named.
struct TestSelection {
    std::vector<CatalogueTest> tests;
    std::vector<std::string> deviceIds; ///< as typed; empty stands for no choice
};

/// Why the arguments cannot be followed: one line for the user.
struct SelectionError {
    std::string message;
};

using MaudioRequest = std::variant<HelpRequest, TestSelection, SelectionError>;

/// Reads the arguments after "-Maudio", UTF-8 as the shell leaves them. Nothing or "help" (or "--help") asks for the help text.
/// Otherwise a diagnostic comes first: "-Q" or "--quick" for all its tests, "-Q" or "--quick=" followed by a selection for
/// some, in double quotes or not. A selection holds items separated by commas, blanks around them ignored; an item is a test's
/// name or several one-letter names in a row. Device ids follow; "--" ends the options, after it an id may begin with "-".
/// All names come from `catalogue`. Never fails otherwise than by a `SelectionError`.
MaudioRequest parseMaudioArguments(const std::vector<std::string> &arguments, const Catalogue &catalogue);

} // namespace host
