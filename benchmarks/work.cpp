// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/figures.h"

#include "resources/icons.h"

#include <QApplication>

#include <array>
#include <cstdio>
#include <string_view>
#include <utility>

namespace {

constexpr std::array<std::pair<std::string_view, void (*)()>, 6> figures{{{"config", &bench::configFigures},
                                                                          {"callbacks", &bench::callbackFigures},
                                                                          {"contrast", &bench::contrastFigures},
                                                                          {"icons", &bench::iconFigures},
                                                                          {"digits", &bench::digitFigures},
                                                                          {"query", &bench::queryFigures}}};

} // namespace

/// bench_work [FIGURE…]: the named figures, without a name all of them.
int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    ostra::initIcons();
    for (const auto &[name, measure] : figures) {
        bool isWanted = argumentCount < 2;
        for (int index = 1; index < argumentCount; ++index)
            isWanted = isWanted || name == arguments[index];
        if (isWanted)
            measure();
    }
    return 0;
}
