// SPDX-License-Identifier: Apache-2.0
#include "host/core/language_setting.h"

#include "utils/language.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QByteArray contents(const QString &file)
{
    QFile reader(file);
    return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray("unreadable");
}

void write(const QString &file, const QByteArray &text)
{
    QFile writer(file);
    QVERIFY(writer.open(QIODevice::WriteOnly));
    QCOMPARE(writer.write(text), text.size());
}

// What the module would read now, by its own code.
QString languageOfTheModule()
{
    ostra::utils::initLanguage();
    return QString::fromStdString(ostra::utils::currentLanguage());
}

} // namespace

class TestLanguageSetting : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void offersNineLanguages();
    void namesEveryLanguageInItself();
    void makesItsFolderAndFile();
    void isReadBackByTheModule_data();
    void isReadBackByTheModule();
    void keepsTheLanguageOfAnEarlierStart();
    void understandsTheNamesOfTheReader_data();
    void understandsTheNamesOfTheReader();
    void leavesAForeignFileAlone();
    void refusesAnUnknownCode();
    void refusesAFolderThatIsNone();
    void staysAsItIsWhenTheFileCannotBeWritten();

private:
    QString before_;
    std::unique_ptr<QTemporaryDir> folder_;
};

void TestLanguageSetting::init()
{
    before_ = QDir::currentPath();
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
}

void TestLanguageSetting::cleanup()
{
    QVERIFY(QDir::setCurrent(before_)); // no system removes the current folder of a process willingly
    folder_.reset();
}

void TestLanguageSetting::offersNineLanguages()
{
    const QStringList codes = host::LanguageSetting::codes();
    QCOMPARE(codes.size(), 9);
    for (const ostra::utils::LanguageAlias &alias : ostra::utils::languageAliases)
        QVERIFY(codes.contains(QString::fromUtf8(alias.code.data(), static_cast<qsizetype>(alias.code.size()))));
}

void TestLanguageSetting::namesEveryLanguageInItself()
{
    const QStringList codes = host::LanguageSetting::codes();
    QStringList names;
    for (const QString &code : codes)
        names.append(host::LanguageSetting::nativeName(code));
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY(!names.contains(QStringLiteral("ja_JP")));
}

void TestLanguageSetting::makesItsFolderAndFile()
{
    const QString folder = folder_->filePath(QStringLiteral("new/Tamrex"));
    host::LanguageSetting setting;
    QVERIFY(setting.useOwnFolder(folder));
    QVERIFY(setting.change(QStringLiteral("de_DE")));
    QCOMPARE(QDir(setting.folder()), QDir(folder));
    QCOMPARE(QDir::current(), QDir(folder));
    QCOMPARE(contents(folder + QStringLiteral("/config.ini")), QByteArray("[LANGUAGE]\nDEFAULT_LANGUAGE=de_DE\n"));
}

void TestLanguageSetting::isReadBackByTheModule_data()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = host::LanguageSetting::codes();
    for (const QString &code : codes)
        QTest::addRow("%s", qPrintable(code)) << code;
}

void TestLanguageSetting::isReadBackByTheModule()
{
    QFETCH(const QString, code);
    host::LanguageSetting setting;
    QVERIFY(setting.useOwnFolder(folder_->path()));
    QVERIFY(setting.change(code));
    QCOMPARE(setting.code(), code);
    QCOMPARE(languageOfTheModule(), code);
}

void TestLanguageSetting::keepsTheLanguageOfAnEarlierStart()
{
    {
        host::LanguageSetting setting;
        QVERIFY(setting.useOwnFolder(folder_->path()));
        QVERIFY(setting.change(QStringLiteral("ja_JP")));
    }
    QVERIFY(QDir::setCurrent(before_));
    host::LanguageSetting setting;
    QVERIFY(setting.useOwnFolder(folder_->path()));
    QCOMPARE(setting.code(), QStringLiteral("ja_JP"));
}

void TestLanguageSetting::understandsTheNamesOfTheReader_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("code");
    QTest::newRow("word") << QByteArray("[LANGUAGE]\nDEFAULT_LANGUAGE=German\n") << QStringLiteral("de_DE");
    QTest::newRow("lower case") << QByteArray("[language]\ndefault_language = NL_nl\r\n") << QStringLiteral("nl_NL");
    QTest::newRow("comment") << QByteArray("; mine\n[LANGUAGE]\nDEFAULT_LANGUAGE=french;x\n") << QStringLiteral("fr_FR");
    QTest::newRow("before a bad line") << QByteArray("[LANGUAGE]\nDEFAULT_LANGUAGE=italian\nwords\n")
                                       << QStringLiteral("it_IT");
}

void TestLanguageSetting::understandsTheNamesOfTheReader()
{
    QFETCH(const QByteArray, text);
    write(folder_->filePath(QStringLiteral("config.ini")), text);
    host::LanguageSetting setting;
    QVERIFY(setting.useForeignFolder(folder_->path()));
    QTEST(setting.code(), "code");
    QCOMPARE(languageOfTheModule(), setting.code());
}

void TestLanguageSetting::leavesAForeignFileAlone()
{
    const QString file = folder_->filePath(QStringLiteral("config.ini"));
    const QByteArray text("[OTHER]\nKEY=1\n[LANGUAGE]\nDEFAULT_LANGUAGE=dutch\n");
    write(file, text);
    host::LanguageSetting setting;
    QVERIFY(setting.useForeignFolder(folder_->path()));
    QVERIFY(!setting.canChange());
    QVERIFY(!setting.change(QStringLiteral("de_DE")));
    QCOMPARE(setting.code(), QStringLiteral("nl_NL"));
    QCOMPARE(contents(file), text);
}

void TestLanguageSetting::refusesAnUnknownCode()
{
    host::LanguageSetting setting;
    QVERIFY(setting.useOwnFolder(folder_->path()));
    QVERIFY(setting.change(QStringLiteral("es_ES")));
    for (const char *code : {"", "german", "de", "DE_DE", "de_DE\nX=1"})
        QVERIFY2(!setting.change(QLatin1String(code)), code);
    QCOMPARE(setting.code(), QStringLiteral("es_ES"));
    QCOMPARE(languageOfTheModule(), QStringLiteral("es_ES"));
}

void TestLanguageSetting::refusesAFolderThatIsNone()
{
    const QString file = folder_->filePath(QStringLiteral("file"));
    write(file, "x");
    host::LanguageSetting setting;
    QVERIFY(!setting.useForeignFolder(folder_->filePath(QStringLiteral("missing"))));
    QVERIFY(!setting.useForeignFolder(file));
    QVERIFY(!setting.useOwnFolder(file + QStringLiteral("/below")));
    QCOMPARE(QDir::currentPath(), before_);
}

// A folder in the file's place stops every user, also one who may write anywhere.
void TestLanguageSetting::staysAsItIsWhenTheFileCannotBeWritten()
{
    QVERIFY(QDir(folder_->path()).mkdir(QStringLiteral("config.ini")));
    host::LanguageSetting setting;
    QVERIFY(!setting.useOwnFolder(folder_->path()));
    const QString before = setting.code();
    QVERIFY(!setting.change(before == QStringLiteral("ja_JP") ? QStringLiteral("de_DE") : QStringLiteral("ja_JP")));
    QCOMPARE(setting.code(), before);
}

QTEST_GUILESS_MAIN(TestLanguageSetting)
#include "tst_language_setting.moc"
