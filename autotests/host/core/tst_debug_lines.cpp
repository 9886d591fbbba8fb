// SPDX-License-Identifier: Apache-2.0
#include "host/core/debug_lines.h"

#include <QLoggingCategory>
#include <QObject>
#include <QTest>

class TestDebugLines : public QObject {
    Q_OBJECT

private slots:
    void hidesThemAndKeepsWarnings();
};

void TestDebugLines::hidesThemAndKeepsWarnings()
{
    const QLoggingCategory *lines = QLoggingCategory::defaultCategory();
    QVERIFY(lines->isDebugEnabled());
    host::hideDebugLines();
    QVERIFY(!lines->isDebugEnabled());
    QVERIFY(lines->isInfoEnabled());
    QVERIFY(lines->isWarningEnabled());
}

QTEST_GUILESS_MAIN(TestDebugLines)
#include "tst_debug_lines.moc"
