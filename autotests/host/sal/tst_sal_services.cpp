// SPDX-License-Identifier: Apache-2.0
#include "contract/sal.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QObject>
#include <QString>
#include <QTest>

#include <clocale>
#include <cstdint>
#include <limits>
#include <string>

class TestSalServices : public QObject {
    Q_OBJECT

private slots:
    void everyServiceIsOneObject();
    void numbersArePlainDigits_data();
    void numbersArePlainDigits();
    void timerCountsMillisecondsForwards();
    void temporaryPathIsAFolderWithoutTrailingSeparator();
    void loaderRefusesWhatIsNotABareName_data();
    void loaderRefusesWhatIsNotABareName();
    void releasingNothingIsHarmless();
};

void TestSalServices::everyServiceIsOneObject()
{
    QVERIFY(get_cim() != nullptr);
    QCOMPARE(get_cim(), get_cim());
    QVERIFY(get_number_handler() != nullptr);
    QCOMPARE(get_number_handler(), get_number_handler());
    QVERIFY(get_timer() != nullptr);
    QCOMPARE(get_timer(), get_timer());
    QVERIFY(get_module() != nullptr);
    QCOMPARE(get_module(), get_module());
    QVERIFY(get_temporary_path() != nullptr);
    QCOMPARE(get_temporary_path(), get_temporary_path());
}

void TestSalServices::numbersArePlainDigits_data()
{
    QTest::addColumn<qlonglong>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0LL << QStringLiteral("0");
    QTest::newRow("channels") << 2LL << QStringLiteral("2");
    QTest::newRow("no grouping") << 192000LL << QStringLiteral("192000");
    QTest::newRow("negative") << -44100LL << QStringLiteral("-44100");
    QTest::newRow("largest") << std::numeric_limits<qlonglong>::max() << QStringLiteral("9223372036854775807");
    QTest::newRow("smallest") << std::numeric_limits<qlonglong>::min() << QStringLiteral("-9223372036854775808");
}

void TestSalServices::numbersArePlainDigits()
{
    QFETCH(qlonglong, number);
    QFETCH(QString, text);
    std::setlocale(LC_ALL, ""); // whatever the machine groups digits by must not show
    QCOMPARE(QString::fromStdString(get_number_handler()->toText(number)), text);
}

void TestSalServices::timerCountsMillisecondsForwards()
{
    QElapsedTimer reference;
    reference.start();
    const std::uint64_t start = get_timer()->ticks();
    std::uint64_t last = start;
    while (reference.elapsed() < 200) {
        const std::uint64_t now = get_timer()->ticks();
        QVERIFY(now >= last);
        last = now;
    }
    const std::uint64_t passed = get_timer()->ticks() - start;
    const auto expected = static_cast<std::uint64_t>(reference.elapsed());
    QVERIFY2(passed + 2 >= 200 && passed <= expected + 2, qPrintable(QString::number(passed)));
}

void TestSalServices::temporaryPathIsAFolderWithoutTrailingSeparator()
{
    const QString path = QString::fromStdString(get_temporary_path()->path());
    QVERIFY(!path.isEmpty());
    QVERIFY2(!path.endsWith(QLatin1Char('/')) && !path.endsWith(QLatin1Char('\\')), qPrintable(path));
    QVERIFY(QFileInfo(path).isDir());
    QVERIFY(QDir::isAbsolutePath(path));
    QVERIFY(QFileInfo(path).isWritable());
}

void TestSalServices::loaderRefusesWhatIsNotABareName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<unsigned>("flag");
    QTest::newRow("no name") << QByteArray() << 1U;
    QTest::newRow("backslash") << QByteArray("sub\\kernel32.dll") << 1U;
    QTest::newRow("full path") << QByteArray("C:\\windows\\system32\\kernel32.dll") << 1U;
    QTest::newRow("slash") << QByteArray("./kernel32.dll") << 1U;
    QTest::newRow("drive") << QByteArray("C:kernel32.dll") << 1U;
    QTest::newRow("zero character") << QByteArray("kernel32.dll\0.txt", 17) << 1U;
    QTest::newRow("missing library") << QByteArray("no_such_library_here.dll") << 1U;
    QTest::newRow("flag 0") << QByteArray("kernel32.dll") << 0U;
    QTest::newRow("flag 2") << QByteArray("kernel32.dll") << 2U;
}

void TestSalServices::loaderRefusesWhatIsNotABareName()
{
    QFETCH(QByteArray, name);
    QFETCH(unsigned, flag);
    QVERIFY(get_module()->load(name.toStdString(), flag) == nullptr);
}

void TestSalServices::releasingNothingIsHarmless()
{
    get_module()->release(nullptr);
    QVERIFY(get_timer()->ticks() > 0);
}

QTEST_GUILESS_MAIN(TestSalServices)
#include "tst_sal_services.moc"
