// SPDX-License-Identifier: Apache-2.0
#include "host/cli/help_text.h"

namespace host {

namespace {

constexpr const char *usage = R"(Usage: TamrexDiagnosticsCLI COMMAND [OPTIONS]
       TamrexDiagnosticsCLI -Maudio [diagnostic]"[test(s)]" [device id(s)]
)";

constexpr const char *rest = R"(
Lists the audio output devices of this machine and what the audio module can test.

Commands:
  list               the devices: number, name, channels and sample rate of the opening format (that of the
                     spoken-digit clips, 22050 without them), driver, driver version
  info               product version, diagnostics and tests with their names
  -Maudio [help]     the audio module's own help
  -Maudio -Q         chooses all tests of the audio diagnostic (also: --quick)
  -Maudio -Q"pm"     chooses tests by letter (also: --quick="p", -Q"p,m", names separated by commas)

Tests that need a user do not run on the command line; the graphical host, TamrexDiagnostics, runs them.
A device id is a device's exact name or its number, both as list shows them; a name goes before a number.
After "--" a device name may begin with "-".

Options:
  --json             list, info: print exactly one JSON document; everything else goes to standard error
  --config DIR       list: use DIR as the current folder; its config.ini chooses the language of the clips
  -h, --help         print this text
  --version          print the versions of the product and of this program

Environment:
  NO_COLOR           when set to any text, no bold header on a terminal

Examples:
  TamrexDiagnosticsCLI list
  TamrexDiagnosticsCLI list --json --config /etc/diagnostics
  TamrexDiagnosticsCLI info --json
  TamrexDiagnosticsCLI -Maudio help
  TamrexDiagnosticsCLI -Maudio -Q"p" 0 "USB Headset"

Exit codes:
  0  done; also when no device was found
  2  wrong usage: unknown command, option, diagnostic, test or device
  3  the chosen tests are not supported on the command line
  4  not completed: the output could not be written, or there was no memory
  6  the audio module cannot be loaded
)";

} // namespace

QString usageText() { return QLatin1String(usage) + QStringLiteral("Try 'TamrexDiagnosticsCLI --help' for more.\n"); }

QString helpText() { return QLatin1String(usage) + QLatin1String(rest); }

} // namespace host
