// SPDX-License-Identifier: Apache-2.0
#include "host/cli/maudio_arguments.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace host {

namespace {

constexpr char quote = '"';

struct ChosenDiagnostic {
    const CatalogueDiagnostic *diagnostic;
    std::optional<std::string_view> selection; // nothing: all tests
};

std::string quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

std::string optionOf(const std::string &name) { return (name.size() == 1 ? "-" : "--") + name; }

// A selection follows a letter at once and a longer name after "=".
std::optional<ChosenDiagnostic> chooseByName(std::string_view argument, const std::string &name,
                                             const CatalogueDiagnostic &diagnostic)
{
    const std::string option = optionOf(name);
    if (name.empty() || !argument.starts_with(option))
        return std::nullopt;
    const std::string_view rest = argument.substr(option.size());
    if (rest.empty())
        return ChosenDiagnostic{&diagnostic, std::nullopt};
    if (name.size() == 1)
        return ChosenDiagnostic{&diagnostic, rest};
    if (rest.front() == '=')
        return ChosenDiagnostic{&diagnostic, rest.substr(1)};
    return std::nullopt;
}

std::optional<ChosenDiagnostic> findDiagnostic(std::string_view argument, const Catalogue &catalogue)
{
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        for (const std::string &name : diagnostic.names.commandLineNames) {
            if (const auto chosen = chooseByName(argument, name, diagnostic))
                return chosen;
        }
    }
    return std::nullopt;
}

std::string knownDiagnostics(const Catalogue &catalogue)
{
    std::string known;
    for (const CatalogueDiagnostic &diagnostic : catalogue) {
        for (const std::string &name : diagnostic.names.commandLineNames)
            known += (known.empty() ? "" : ", ") + optionOf(name);
    }
    return known;
}

std::string knownTests(const CatalogueDiagnostic &diagnostic)
{
    std::string known;
    for (const CatalogueTest &test : diagnostic.tests) {
        for (const std::string &name : test.names.commandLineNames)
            known += (known.empty() ? "" : ", ") + name;
    }
    return known;
}

const CatalogueTest *findTest(std::string_view name, const CatalogueDiagnostic &diagnostic)
{
    const auto isNamed = [name](const CatalogueTest &test) {
        const std::vector<std::string> &names = test.names.commandLineNames;
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto found = std::find_if(diagnostic.tests.begin(), diagnostic.tests.end(), isNamed);
    return found != diagnostic.tests.end() ? &*found : nullptr;
}

// One name, or letters in a row. False when any of it is unknown.
bool takeItem(std::string_view item, const CatalogueDiagnostic &diagnostic, std::vector<const CatalogueTest *> &tests)
{
    if (const CatalogueTest *test = findTest(item, diagnostic)) {
        tests.push_back(test);
        return true;
    }
    for (std::size_t position = 0; position < item.size(); ++position) {
        const CatalogueTest *test = findTest(item.substr(position, 1), diagnostic);
        if (test == nullptr)
            return false;
        tests.push_back(test);
    }
    return !item.empty();
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<CatalogueTest> eachOnce(const std::vector<const CatalogueTest *> &tests)
{
    std::vector<CatalogueTest> result;
    for (const CatalogueTest *test : tests) {
        if (std::none_of(result.begin(), result.end(), [test](const CatalogueTest &taken) { return taken.id == test->id; }))
            result.push_back(*test);
    }
    return result;
}

MaudioRequest selectItems(std::string_view items, const CatalogueDiagnostic &diagnostic)
{
    std::vector<const CatalogueTest *> tests;
    for (bool isLast = false; !isLast;) {
        const std::size_t comma = items.find(',');
        isLast = comma == std::string_view::npos;
        const std::string_view item = trimmed(items.substr(0, comma));
        if (item.empty())
            return SelectionError{"a test name is missing (known: " + knownTests(diagnostic) + ")"};
        if (!takeItem(item, diagnostic, tests))
            return SelectionError{"unknown test " + quoted(item) + " (known: " + knownTests(diagnostic) + ")"};
        items.remove_prefix(isLast ? 0 : comma + 1);
    }
    return TestSelection{eachOnce(tests), {}};
}

// The quotation marks of the usage line are there only when the shell was made to keep them.
MaudioRequest selectTests(const ChosenDiagnostic &chosen)
{
    if (!chosen.selection)
        return TestSelection{chosen.diagnostic->tests, {}};
    std::string_view items = *chosen.selection;
    if (items.size() >= 2 && items.front() == quote && items.back() == quote)
        items = items.substr(1, items.size() - 2);
    if (items.find(quote) != std::string_view::npos)
        return SelectionError{"misplaced quotation mark in " + quoted(*chosen.selection)};
    return selectItems(items, *chosen.diagnostic);
}

MaudioRequest addDevices(TestSelection selection, const std::vector<std::string> &arguments, const Catalogue &catalogue)
{
    bool hasOptions = true;
    for (std::size_t position = 1; position < arguments.size(); ++position) {
        const std::string &argument = arguments[position];
        const bool isOption = hasOptions && argument.size() > 1 && argument.front() == '-';
        if (!isOption)
            selection.deviceIds.push_back(argument);
        else if (argument == "--")
            hasOptions = false;
        else if (findDiagnostic(argument, catalogue))
            return SelectionError{"only one diagnostic can be chosen: " + quoted(argument) + " is one too many"};
        else
            return SelectionError{"unknown option " + quoted(argument) + " (a device name that begins with '-' goes after --)"};
    }
    return selection;
}

} // namespace

MaudioRequest parseMaudioArguments(const std::vector<std::string> &arguments, const Catalogue &catalogue)
{
    if (arguments.empty())
        return HelpRequest{};
    const std::string &first = arguments.front();
    const auto chosen = findDiagnostic(first, catalogue);
    if (!chosen && (first == "help" || first == "--help")) {
        if (arguments.size() > 1)
            return SelectionError{"unexpected argument " + quoted(arguments[1]) + " after " + quoted(first)};
        return HelpRequest{};
    }
    if (!chosen)
        return SelectionError{"unknown diagnostic " + quoted(first) + " (known: " + knownDiagnostics(catalogue) + ")"};
    MaudioRequest request = selectTests(*chosen);
    if (auto *selection = std::get_if<TestSelection>(&request))
        return addDevices(std::move(*selection), arguments, catalogue);
    return request;
}

} // namespace host
