// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/abstract_widget_wrapper.h"
#include "contract/opaque_record.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ostra {

/// A question, a prompt or a dialog that a test puts to the user through `ProgressReporter::requestInput`. Owned by the test.
class InputRequest {
public:
    /// The keys of title and body, and the three options.
    InputRequest(std::string titleKey, std::string textKey, std::uint32_t first, std::uint32_t second, std::uint32_t third)
        : title(std::move(titleKey)), text(std::move(textKey)), firstOption(first), secondOption(second), thirdOption(third)
    {}
    InputRequest(const InputRequest &) = delete;
    InputRequest &operator=(const InputRequest &) = delete;

    virtual ~InputRequest() = default; // slot 0, the only one

    AbstractWidgetWrapper *widget = nullptr; ///< not owned; dialog to run, or null for a plain prompt
    std::uint32_t answer = 0;                ///< written by the host; what it means depends on the options
    std::string title;                       ///< key of the title
    std::string text;                        ///< key of the body
    std::uint32_t firstOption;               ///< passed through to the host unread
    std::uint32_t secondOption;              ///< passed through to the host unread
    std::vector<OpaqueRecord> choices;       ///< never filled by this module
    std::uint32_t thirdOption;               ///< passed through to the host unread
    std::uintptr_t extra = 0;                ///< zero
};

} // namespace ostra
