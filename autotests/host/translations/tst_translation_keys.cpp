// SPDX-License-Identifier: Apache-2.0
#include "autotests/host/translations/source_keys.h"
#include "autotests/host/translations/translation_file.h"

#include <QObject>
#include <QTest>

namespace {

// Folders of the product and its host; the automated tests may ask for keys that do not exist.
const QStringList &productFolders()
{
    static const QStringList folders = {QStringLiteral("contract"), QStringLiteral("utils"), QStringLiteral("audio"),
                                        QStringLiteral("tests"),    QStringLiteral("views"), QStringLiteral("module"),
                                        QStringLiteral("host")};
    return folders;
}

// The context and environment variables look like keys, and in the host single words, such as those of its command line.
bool isOtherName(const QString &literal, bool isHosts)
{
    return literal == QLatin1String("AUDIO") || literal.startsWith(QLatin1String("SDL_")) ||
           literal.startsWith(QLatin1String("QT_")) || (isHosts && !literal.contains(QLatin1Char('_')));
}

QSet<QString> untranslatedLiterals(const QString &source, const QSet<QString> &known, bool isHosts)
{
    QSet<QString> lacking = keyLikeLiterals(source) - known;
    lacking.removeIf([isHosts](const QString &literal) { return isOtherName(literal, isHosts); });
    return lacking;
}

QSet<QString> keysOf(const QString &part)
{
    const QList<QString> keys = readTranslationFile(part, QStringLiteral("en_US")).translations.keys();
    return {keys.begin(), keys.end()};
}

QString listed(const QSet<QString> &keys)
{
    QStringList sorted(keys.begin(), keys.end());
    sorted.sort();
    return sorted.join(QLatin1String(", "));
}

} // namespace

class TestTranslationKeys : public QObject {
    Q_OBJECT

private slots:
    void findsKeysInCalls_data();
    void findsKeysInCalls();
    void findsKeysInTheHostsShortForm();
    void findsLiteralsThatLookLikeKeys_data();
    void findsLiteralsThatLookLikeKeys();
    void everyKeyInACallIsTranslated_data();
    void everyKeyInACallIsTranslated();
    void everyDeclaredKeyIsTranslated_data();
    void everyDeclaredKeyIsTranslated();
    void everyLiteralThatLooksLikeAKeyIsTranslated_data();
    void everyLiteralThatLooksLikeAKeyIsTranslated();
    void everyPartOfACompositeKeyIsTranslated();
};

void TestTranslationKeys::findsKeysInCalls_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("keys");
    QTest::newRow("plain") << R"(x = QCoreApplication::translate("AUDIO", "NEXT");)"
                           << "NEXT";
    QTest::newRow("over lines") << "translate(\n    \"AUDIO\",\n    \"NEXT\", nullptr)"
                                << "NEXT";
    QTest::newRow("two") << R"(translate("AUDIO", "A"), translate("AUDIO","B"))"
                         << "A, B";
    QTest::newRow("marked for later") << R"(QT_TRANSLATE_NOOP("AUDIO", "PLAY"))"
                                      << "PLAY";
    QTest::newRow("another context") << R"(translate("HOST", "NEXT"))"
                                     << "";
    QTest::newRow("another function") << R"(retranslate("AUDIO", "NEXT"))"
                                      << "";
    QTest::newRow("key in a variable") << R"(translate("AUDIO", key))"
                                       << "";
}

void TestTranslationKeys::findsKeysInCalls()
{
    QFETCH(QString, source);
    QFETCH(QString, keys);
    QCOMPARE(listed(keysInCalls(source, QStringLiteral("AUDIO"))), keys);
}

void TestTranslationKeys::findsKeysInTheHostsShortForm()
{
    const QString source = QStringLiteral(R"(hostText("QUIT") + translate("HOST", "ABOUT") + hostText(key))");
    QCOMPARE(listed(keysInCalls(source, QStringLiteral("HOST"))), QStringLiteral("ABOUT, QUIT"));
    QCOMPARE(listed(keysInCalls(source, QStringLiteral("AUDIO"))), QString());
}

void TestTranslationKeys::findsLiteralsThatLookLikeKeys_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("keys");
    QTest::newRow("words") << R"(show(u"FIRST_SEQUENCE", "NEXT");)"
                           << "FIRST_SEQUENCE, NEXT";
    QTest::newRow("sentences") << R"("ERROR._|PLEASE_TRY_AGAIN.")"
                               << "ERROR._|PLEASE_TRY_AGAIN.";
    QTest::newRow("title of the input request") << R"("kTkAdvancedTestInputTitle")"
                                                << "kTkAdvancedTestInputTitle";
    QTest::newRow("in a form") << "<string>CANCEL</string>"
                               << "CANCEL";
    QTest::newRow("no key") << R"("audio_playback_test" "Sound" "OK" "A B")"
                            << "";
}

void TestTranslationKeys::findsLiteralsThatLookLikeKeys()
{
    QFETCH(QString, source);
    QFETCH(QString, keys);
    QCOMPARE(listed(keyLikeLiterals(source)), keys);
}

void TestTranslationKeys::everyKeyInACallIsTranslated_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("audio") << "audio";
    QTest::newRow("host") << "host";
}

void TestTranslationKeys::everyKeyInACallIsTranslated()
{
    QFETCH(QString, part);
    const QSet<QString> known = keysOf(part);
    QStringList missing;
    for (const QString &folder : productFolders()) {
        const auto sources = sourcesIn(folder);
        QVERIFY2(!sources.isEmpty() || folder == QLatin1String("views"), qPrintable(folder));
        for (auto source = sources.begin(); source != sources.end(); ++source) {
            const QSet<QString> lacking = keysInCalls(source.value(), contextOf(part)) - known;
            if (!lacking.isEmpty())
                missing.append(source.key() + QLatin1String(": ") + listed(lacking));
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void TestTranslationKeys::everyDeclaredKeyIsTranslated_data()
{
    QTest::addColumn<QString>("header");
    QTest::addColumn<int>("leastCount");
    QTest::newRow("messages") << "contract/message_keys.h" << 18;
    QTest::newRow("properties") << "contract/property_keys.h" << 5;
}

void TestTranslationKeys::everyDeclaredKeyIsTranslated()
{
    QFETCH(QString, header);
    QFETCH(int, leastCount);
    const auto sources = sourcesIn(header);
    QCOMPARE(sources.size(), 1);
    const QSet<QString> declared = declaredLiterals(sources.first());
    QVERIFY2(declared.size() >= leastCount, qPrintable(listed(declared)));
    QCOMPARE(listed(declared - keysOf(QStringLiteral("audio"))), QString());
}

void TestTranslationKeys::everyLiteralThatLooksLikeAKeyIsTranslated_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("isHosts");
    QTest::newRow("the tests of the module") << "tests" << false;
    QTest::newRow("their dialogs") << "views" << false;
    QTest::newRow("the core of the host") << "host/core" << true;
    QTest::newRow("the graphical host") << "host/gui" << true;
}

// Keys that reach their translation through a variable, as the module's all do.
void TestTranslationKeys::everyLiteralThatLooksLikeAKeyIsTranslated()
{
    QFETCH(QString, folder);
    QFETCH(bool, isHosts);
    QSet<QString> known = keysOf(QStringLiteral("audio"));
    if (isHosts)
        known.unite(keysOf(QStringLiteral("host")));
    QStringList missing;
    const auto sources = sourcesIn(folder);
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        const QSet<QString> lacking = untranslatedLiterals(source.value(), known, isHosts);
        if (!lacking.isEmpty())
            missing.append(source.key() + QLatin1String(": ") + listed(lacking));
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

// A host that shows every sentence on a line of its own translates them one by one.
void TestTranslationKeys::everyPartOfACompositeKeyIsTranslated()
{
    const QSet<QString> known = keysOf(QStringLiteral("audio"));
    int partCount = 0;
    for (const QString &key : known) {
        const QStringList parts = key.split(QLatin1Char('|'));
        partCount += parts.size() > 1 ? static_cast<int>(parts.size()) : 0;
        QCOMPARE(listed(QSet<QString>(parts.begin(), parts.end()) - known), QString());
    }
    QVERIFY(partCount > 0);
}

QTEST_GUILESS_MAIN(TestTranslationKeys)
#include "tst_translation_keys.moc"
