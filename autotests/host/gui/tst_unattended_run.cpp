// SPDX-License-Identifier: Apache-2.0
#include "host/gui/unattended_run.h"

#include "autotests/host/gui/fake_module.h"
#include "host/gui/dialog_prompter.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

} // namespace

// What a run with nobody there leaves behind when it cannot be performed: no clip lies beside this test.
class TestUnattendedRun : public QObject {
    Q_OBJECT

private slots:
    void init();
    void writesItsVerdictDown();
    void forgetsAnEarlierVerdict_data();
    void forgetsAnEarlierVerdict();
    void hasNoVerdictThatItCannotWrite();
    void reportsARunThatCannotBegin();

private:
    QString verdictFile() const { return folder_->filePath(QStringLiteral("verdict")); }
    QString reportFile() const { return folder_->filePath(QStringLiteral("report.json")); }

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<FakeModule> module_;
    std::unique_ptr<host::DialogPrompter> prompter_;
    std::unique_ptr<host::TestSession> session_;
    host::Options options_;
};

void TestUnattendedRun::init()
{
    session_.reset(); // before what it stands on
    folder_ = std::make_unique<QTemporaryDir>();
    module_ = std::make_unique<FakeModule>();
    prompter_ = std::make_unique<host::DialogPrompter>();
    session_ = std::make_unique<host::TestSession>(module_->interface(), *prompter_, folder_->path());
    session_->refresh();
    options_ = {};
    options_.isUnattended = true;
    options_.test = QStringLiteral("p");
    options_.device = QStringLiteral("Headphones");
    options_.source = QStringLiteral("Monitor of Headphones");
    options_.reportFiles = {reportFile()};
    options_.verdictFile = verdictFile();
}

void TestUnattendedRun::writesItsVerdictDown()
{
    host::UnattendedRun run(*session_, options_, QStringLiteral("en_US"));
    QString problem;
    QVERIFY2(run.prepare(problem), qPrintable(problem));
    QVERIFY(!QFile::exists(verdictFile()));
    QCOMPARE(run.run(), 3);
    QCOMPARE(contentOf(verdictFile()), QByteArray("3\n"));
    QVERIFY(QFile::exists(reportFile()));
}

void TestUnattendedRun::forgetsAnEarlierVerdict_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("known device") << QStringLiteral("Headphones");
    QTest::newRow("unknown device") << QStringLiteral("Nobody");
}

void TestUnattendedRun::forgetsAnEarlierVerdict()
{
    QFETCH(const QString, device);
    QVERIFY(write(verdictFile(), "0\n"));
    options_.device = device;
    host::UnattendedRun run(*session_, options_, QStringLiteral("en_US"));
    QString problem;
    QCOMPARE(run.prepare(problem), device == QStringLiteral("Headphones"));
    QVERIFY(!QFile::exists(verdictFile()));
}

void TestUnattendedRun::hasNoVerdictThatItCannotWrite()
{
    host::UnattendedRun run(*session_, options_, QStringLiteral("en_US"));
    QString problem;
    QVERIFY(run.prepare(problem));
    QVERIFY(QDir().mkpath(verdictFile() + QStringLiteral("/in-its-place")));
    QCOMPARE(run.run(), 4);

    QVERIFY(!run.prepare(problem));
    QVERIFY2(problem.contains(QStringLiteral("the verdict cannot be written into")), qPrintable(problem));
}

void TestUnattendedRun::reportsARunThatCannotBegin()
{
    host::UnattendedRun run(*session_, options_, QStringLiteral("en_US"));
    QString problem;
    QVERIFY2(run.prepare(problem), qPrintable(problem));
    int code = -1;
    module_->playback = [&](ostra::TestContext &) {
        code = run.run(); // while another one is under way
        return ostra::result::passed;
    };
    session_->run(0, 0, QStringLiteral("en_US"));
    QCOMPARE(code, 4);
    QCOMPARE(contentOf(verdictFile()), QByteArray("4\n"));
    const QJsonObject report = QJsonDocument::fromJson(contentOf(reportFile())).object();
    QCOMPARE(report.value(QLatin1String("verdict"))[QLatin1String("code")].toInt(), 4);
    QCOMPARE(report.value(QLatin1String("reasonKeys")).toArray(), QJsonArray{QStringLiteral("REASON_RUN_NOT_TAKEN")});
    QCOMPARE(report.value(QLatin1String("device"))[QLatin1String("name")].toString(), QStringLiteral("Headphones"));
    QVERIFY(report.value(QLatin1String("moduleCode")).isNull());
}

QTEST_MAIN(TestUnattendedRun)
#include "tst_unattended_run.moc"
