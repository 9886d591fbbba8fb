// SPDX-License-Identifier: Apache-2.0
#include "host/gui/process_end.h"

#include <csignal>
#include <cstdlib>
#include <cstring>

namespace {

struct EndedByALibrary {
    ~EndedByALibrary() { std::_Exit(EXIT_SUCCESS); } // it would hide how the program ends
};

void act(const char *word)
{
    if (std::strcmp(word, "guard") == 0)
        host::guardProcessEnd();
    if (std::strncmp(word, "verdict", 7) == 0)
        host::noteVerdict(word[7] - '0');
    if (std::strcmp(word, "release") == 0)
        host::releaseProcessEnd();
    if (std::strcmp(word, "late") == 0)
        static const EndedByALibrary late;
    if (std::strncmp(word, "exit", 4) == 0)
        std::exit(word[4] - '0');
    if (std::strcmp(word, "abort") == 0)
        std::abort();
}

} // namespace

/// Ends as its arguments say, one after the other: "guard", "verdictN", "release", "late", "exitN", "abort".
int main(int argc, char *argv[])
{
    for (int index = 1; index < argc; ++index)
        act(argv[index]);
    return 0;
}
