// SPDX-License-Identifier: Apache-2.0
#include "host/cli/option_table.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

constexpr const char *languages = "pt_BR en_US es_ES fr_FR it_IT de_DE nl_NL zh_CN ja_JP";

constexpr std::array<OptionRow, 24> options{{
    {"json", nullptr, nullptr, "list info clips", Completion::none, nullptr,
     "print exactly one JSON document; everything else goes to standard error", false},
    {"config", nullptr, "DIR", "list run", Completion::folder, nullptr,
     "use DIR as the current folder; its config.ini chooses the language", false},
    {"self-check", nullptr, nullptr, "info", Completion::none, nullptr,
     "tell what this installation cannot do; ends with 3 when a verdict cannot be had, such as without a sound server, but not "
     "for a limit, such as pictures it cannot read",
     false},
    {"test", nullptr, "LETTER", "run", Completion::words, "p m",
     "the test to run, p: audio playback, m: microphone; p without it", true},
    {"device", nullptr, "NAME", "run", Completion::none, nullptr, "the device to test: its exact name or its number", true},
    {"listen", nullptr, "SOURCE", "run", Completion::none, nullptr,
     "the capture source that hears the device: an input's name, or \"loopback:\" and the device's own name for what it is "
     "given "
     "to play, which proves the way to the system's mixer only; without it the device's monitor or, where there is none, its "
     "loopback",
     false},
    {"microphone", nullptr, "NAME", "run", Completion::none, nullptr,
     "the microphone that test m chooses; the first one without it", false},
    {"speak-through", nullptr, "OUTPUT", "run", Completion::none, nullptr,
     "the output that the microphone hears in test m; the tested device without it", false},
    {"report", nullptr, "FILE", "run", Completion::file, nullptr,
     "write a report, by its suffix as .json, .xml (JUnit), .html or .txt; of several runs each its own, -1, -2, ... behind "
     "the name",
     true},
    {"keep-audio", nullptr, "FILE", "run", Completion::file, nullptr,
     "keep all that is heard, voices in the room too, in FILE (.wav), of several runs each its own; without this no sound is "
     "kept",
     false},
    {"all-languages", nullptr, nullptr, "run", Completion::none, nullptr,
     "run each test in each of the nine languages; the user's own language stays", false},
    {"reports", nullptr, "DIR", "run", Completion::folder, nullptr,
     "write the reports of each run into DIR, which is made where it is missing, as .json, .xml (JUnit) and .html, named by "
     "device, test and language",
     false},
    {"channel-check", nullptr, nullptr, "run", Completion::none, nullptr,
     "check left and right of the device before the run, at the present volume; it is reported, and no part of the verdict",
     false},
    {"screenshots", nullptr, "DIR", "run", Completion::folder, nullptr, "photograph the windows into that folder", false},
    {"allow-virtual", nullptr, nullptr, "run", Completion::none, nullptr,
     "also run on a device that no hardware stands behind; it is refused without this", false},
    {"language", nullptr, "CODE", "run clips", Completion::words, languages,
     "the language of dialogs and digits, or the only one to check", false},
    {"output", "o", "FILE", "report", Completion::file, nullptr,
     "write there, by its suffix as .json, .xml (JUnit), .html or .txt; without it text is printed", true},
    {"folder", nullptr, "DIR", "clips", Completion::folder, nullptr,
     "the folder of the clips and their manifest; without it those of this installation", false},
    {"verbose", nullptr, nullptr, nullptr, Completion::none, nullptr,
     "also show the debug lines of the module on standard error", false},
    {"gnu-exit", nullptr, nullptr, nullptr, Completion::none, nullptr,
     "for build tools: end with 77 (skipped) instead of 3, and with 99 (hard error) instead of 4 and 6", false},
    {"print-manual", nullptr, nullptr, nullptr, Completion::none, nullptr, "print the manual page (troff) and end", false},
    {"print-completion", nullptr, nullptr, nullptr, Completion::none, nullptr,
     "print the completion for the shell bash and end", false},
    {"help", "h", nullptr, nullptr, Completion::none, nullptr, "print help, behind a command that of the command, and end",
     false},
    {"version", nullptr, nullptr, nullptr, Completion::none, nullptr,
     "print the versions of the product and of this program and end", false},
}};

constexpr std::array<CommandRow, 5> commands{{
    {"list", nullptr, Completion::none, nullptr,
     "Lists the outputs and the inputs: number (of an output), direction, name, channels and sample rate of the opening format "
     "(that of the spoken-digit clips, "
     "22050 without them), driver, driver version, whether the device is a virtual one, and as they are now its volume, whether it is muted and whether "
     "it is the default one; of an input its name as --microphone takes it, of a monitor (what an output plays) as --listen "
     "does. Ends with 3 when the sound server does not answer.",
     "list\nlist --json --config /etc/diagnostics"},
    {"info", nullptr, Completion::none, nullptr, "Tells the product's version, the diagnostics and their tests.",
     "info --json\ninfo --self-check"},
    {"run", nullptr, Completion::none, nullptr,
     "Runs tests with nobody there: starts the graphical host, which needs a display, once for each test, device and language. "
     "Ends with "
     "the worst of their codes; 1 is worse than 2, 6, 4, 3 and 0, in this order.",
     "run --device \"USB Headset\" --listen \"Room Microphone\" --report headset.html\n"
     "run --test p --test m --device Speakers --microphone Headset --all-languages --reports results\n"
     "run --test p --device 0 --device 1 --report result.json --report result.xml --gnu-exit"},
    {"report", "FILE", Completion::file, nullptr, "Converts a report in JSON, which run wrote, to another format.",
     "report result.json\nreport result.json --output result.html --output result.xml"},
    {"clips", "verify", Completion::words, "verify",
     "Compares the spoken clips with the manifest that was shipped with them. Ends with 1 when one is missing or "
     "another, with 3 when there is no manifest.",
     "clips verify\nclips verify --language ja_JP --json"},
}};

constexpr std::array<ExitCodeRow, 8> exitCodes{{
    {0, "done, passed; also when list found no device, but a sound server that answers"},
    {1, "a test failed, or a clip is not the one that was supplied"},
    {2, "wrong usage: unknown command, option, diagnostic, test, device or file"},
    {3, "cannot be performed: refused, not supported on the command line, or something is lacking"},
    {4, "not completed: interrupted by an event, no memory, no output, or the graphical host broke down or hung"},
    {6, "the audio module or the graphical host cannot be used"},
    {130, "ended by Ctrl-C during run"},
    {143, "asked to end during run"},
}};

} // namespace

std::span<const OptionRow> optionRows() { return options; }

std::span<const CommandRow> commandRows() { return commands; }

std::span<const ExitCodeRow> exitCodeRows() { return exitCodes; }

const CommandRow *findCommand(const QString &name)
{
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&name](const CommandRow &row) { return name == QLatin1String(row.name); });
    return found == commands.end() ? nullptr : &*found;
}

bool takesOption(const CommandRow &command, const OptionRow &option)
{
    return option.commands == nullptr || wordsOf(option.commands).contains(QLatin1String(command.name));
}

QStringList wordsOf(const char *list, QChar separator)
{
    return list == nullptr ? QStringList() : QString::fromLatin1(list).split(separator, Qt::SkipEmptyParts);
}

} // namespace host
