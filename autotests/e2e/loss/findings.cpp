// SPDX-License-Identifier: Apache-2.0
#include "autotests/e2e/loss/findings.h"

#include <cstdio>

void Findings::expect(bool isTrue, const QString &text)
{
    if (isTrue)
        return;
    ++failureCount_;
    note(QStringLiteral("FAIL: ") + text);
}

void Findings::note(const QString &text) const
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(name_), qPrintable(text));
    std::fflush(stderr);
}
