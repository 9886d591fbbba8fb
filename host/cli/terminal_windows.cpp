// SPDX-License-Identifier: Apache-2.0
#include "host/cli/terminal.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <cstdio>

namespace host {

namespace {

bool isConsole(DWORD stream, DWORD &mode) { return GetConsoleMode(GetStdHandle(stream), &mode) != 0; }

} // namespace

struct Terminal::State {
    UINT codePage = 0; // 0: no console
    DWORD outputMode = 0;
    bool outputIsConsole = false;
    bool errorIsConsole = false;
    bool hasStyles = false;
};

Terminal::Terminal() : state_(std::make_unique<State>())
{
    // Text mode would turn every "\n" into two bytes.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    DWORD errorMode = 0;
    state_->outputIsConsole = isConsole(STD_OUTPUT_HANDLE, state_->outputMode);
    state_->errorIsConsole = isConsole(STD_ERROR_HANDLE, errorMode);
    if (state_->outputIsConsole || state_->errorIsConsole) {
        state_->codePage = GetConsoleOutputCP();
        SetConsoleOutputCP(CP_UTF8);
    }
    state_->hasStyles = state_->outputIsConsole &&
                        SetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE),
                                       state_->outputMode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

Terminal::~Terminal()
{
    if (state_->codePage != 0)
        SetConsoleOutputCP(state_->codePage);
    if (state_->hasStyles)
        SetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), state_->outputMode);
}

bool Terminal::outputUnderstandsStyles() const { return state_->hasStyles; }

bool Terminal::errorIsWatched() const { return state_->errorIsConsole; }

QString platformWithoutDisplay() { return {}; }

} // namespace host
