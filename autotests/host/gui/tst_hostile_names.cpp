// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/gui/fake_module.h"
#include "autotests/support/hostile_names.h"
#include "host/gui/console_output.h"
#include "host/gui/dialog_prompter.h"
#include "host/gui/main_window.h"
#include "host/reports/run_report.h"
#include "host/translations/translators.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QObject>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Language : host::LanguageSetting {
    explicit Language(const QString &path) { useOwnFolder(path); }
};

/// The host with one device of a given name.
struct Program {
    explicit Program(const QString &name) : window(session, language, QStringLiteral("4.42.0.92"), false)
    {
        module.names = {name.toStdString(), "Speakers"};
        session.refresh();
        window.show();
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        return window.findChild<Widget *>(QLatin1String(name));
    }

    QTemporaryDir folder;
    Language language{folder.path()};
    FakeModule module;
    host::DialogPrompter prompter;
    host::TestSession session{module.interface(), prompter, folder.path()};
    host::MainWindow window;
};

} // namespace

/// Whatever a device is called, its name is text and nothing but text.
class TestHostileNames : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(host::installTranslators(QStringLiteral("en_US"))); }
    void isTextInTheWindow_data() { addNames(); }
    void isTextInTheWindow();
    void isTheSameInEveryRecord_data() { addNames(); }
    void isTheSameInEveryRecord();
    void isFoundByTheOptionOfAnUnattendedRun_data() { addNames(); }
    void isFoundByTheOptionOfAnUnattendedRun();

private:
    static void addNames()
    {
        QTest::addColumn<QString>("name");
        for (const hostile_names::Name &name : hostile_names::all())
            QTest::newRow(name.row) << name.text;
    }
};

void TestHostileNames::isTextInTheWindow()
{
    QFETCH(QString, name);
    Program program(name);
    const auto *table = program.find<QTableWidget>("host_devices");
    const QTableWidgetItem *cell = table->item(0, 0);
    QCOMPARE(cell->text(), name);
    QCOMPARE(hostile_names::shownByItself(cell->toolTip()), name);
    QVERIFY(program.window.minimumSizeHint().width() < 1000); // a long name is cut, it does not widen the window

    program.window.choose(0, 0);
    QVERIFY(program.session.run(0, 0, QStringLiteral("en_US")));
    QVERIFY(program.find<QPlainTextEdit>("host_log")->toPlainText().contains(name));
    for (const QLabel *label : program.window.findChildren<QLabel *>()) {
        if (!name.isEmpty() && label->text().contains(name))
            QVERIFY2(label->textFormat() == Qt::PlainText, qPrintable(label->objectName()));
    }
    for (const QTableWidget *list : program.window.findChildren<QTableWidget *>()) {
        for (int column = 0; column < list->columnCount() && list->rowCount() > 0; ++column) {
            const QTableWidgetItem *item = list->item(0, column);
            if (item != nullptr && !name.isEmpty() && item->text().contains(name))
                QVERIFY(hostile_names::shownByItself(item->toolTip()) == name || item->toolTip().isEmpty());
        }
    }
}

void TestHostileNames::isTheSameInEveryRecord()
{
    QFETCH(QString, name);
    Program program(name);
    const auto record = program.session.run(0, 0, QStringLiteral("en_US"));
    QVERIFY(record);
    QCOMPARE(record->device.name, name);
    const QJsonObject report = QJsonDocument::fromJson(host::runReport(*record)).object();
    QCOMPARE(report[QStringLiteral("device")][QStringLiteral("name")].toString(), name);
    QVERIFY(host::runSummary(*record).startsWith(
        QStringLiteral("AUDIO_PLAYBACK_TEST on '%1' (en_US)").replace(QStringLiteral("%1"), name)));
    QVERIFY(host::unknownDevice(QStringLiteral("x"), program.session.deviceList().devices()).contains(u'\'' + name + u'\''));
}

void TestHostileNames::isFoundByTheOptionOfAnUnattendedRun()
{
    QFETCH(QString, name);
    const Program program(name);
    QCOMPARE(program.session.deviceList().find(name), qsizetype(0));
}

QTEST_MAIN(TestHostileNames)
#include "tst_hostile_names.moc"
