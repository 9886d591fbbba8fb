// SPDX-License-Identifier: Apache-2.0
#include "fuzz/fuzz_check.h"
#include "host/cli/maudio_arguments.h"

#include <algorithm>
#include <string_view>

using namespace host;
using fuzz::require;

namespace {

Catalogue audioCatalogue()
{
    const CatalogueTest playback{{15, 1, 1}, {"", "", {"p", "audio_playback_test"}}};
    const CatalogueTest microphone{{15, 1, 2}, {"", "", {"m", "microphone_interactive_test"}}};
    return {{{15, 1, 0}, {"", "", {"Q", "quick"}}, {playback, microphone}}};
}

std::vector<std::string> lines(std::string_view text)
{
    std::vector<std::string> parts;
    for (bool isLast = text.empty(); !isLast;) {
        const std::size_t end = text.find('\n');
        isLast = end == std::string_view::npos;
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(isLast ? 0 : end + 1);
    }
    return parts;
}

std::vector<ostra::EntityId> idsOf(const TestSelection &selection)
{
    std::vector<ostra::EntityId> ids;
    for (const CatalogueTest &test : selection.tests)
        ids.push_back(test.id);
    return ids;
}

// Devices in the order in which they were typed, nothing added, nothing changed.
bool isSubsequence(const std::vector<std::string> &part, const std::vector<std::string> &whole)
{
    auto from = whole.begin();
    for (const std::string &text : part) {
        from = std::find(from, whole.end(), text);
        if (from == whole.end())
            return false;
        ++from;
    }
    return true;
}

void checkSelection(const TestSelection &selection, const std::vector<std::string> &arguments, const Catalogue &catalogue)
{
    require(!selection.tests.empty() && selection.tests.size() <= 2, "every selection has a test, each once");
    require(selection.tests.size() < 2 || selection.tests[0].id != selection.tests[1].id, "no test is chosen twice");
    require(arguments.front().starts_with("-Q") || arguments.front().starts_with("--quick"), "a diagnostic comes first");
    require(isSubsequence(selection.deviceIds, {arguments.begin() + 1, arguments.end()}), "devices are those that were typed");

    std::string written = "--quick=";
    for (const CatalogueTest &test : selection.tests)
        written += (written.back() == '=' ? "" : ", ") + test.names.commandLineNames.back();
    std::vector<std::string> again{written, "--"};
    again.insert(again.end(), selection.deviceIds.begin(), selection.deviceIds.end());
    const MaudioRequest request = parseMaudioArguments(again, catalogue);
    const auto *same = std::get_if<TestSelection>(&request);
    require(same != nullptr && idsOf(*same) == idsOf(selection) && same->deviceIds == selection.deviceIds,
            "a selection written out in full is the same selection");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t byteCount)
{
    static const Catalogue catalogue = audioCatalogue();
    const std::vector<std::string> arguments = lines({fuzz::chars(data), byteCount});
    const MaudioRequest request = parseMaudioArguments(arguments, catalogue);
    if (const auto *selection = std::get_if<TestSelection>(&request))
        checkSelection(*selection, arguments, catalogue);
    if (const auto *error = std::get_if<SelectionError>(&request))
        require(!error->message.empty(), "an error is explained");
    if (std::holds_alternative<HelpRequest>(request))
        require(arguments.empty() || (arguments.size() == 1 && arguments[0].ends_with("help")), "help is asked for by name");
    return 0;
}
