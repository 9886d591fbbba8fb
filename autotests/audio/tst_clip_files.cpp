// SPDX-License-Identifier: Apache-2.0
#include "audio/clip_files.h"
#include "autotests/support/wave_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ostra::audio;

class TestClipFiles : public QObject {
    Q_OBJECT

private slots:
    void namesTheFileByDigitAndLanguage_data();
    void namesTheFileByDigitAndLanguage();
    void wantsAllTenClips_data();
    void wantsAllTenClips();
    void refusesAFolderInPlaceOfAClip();
    void findsClipsBelowANonAsciiFolder();
    void findsNothingWithoutALanguage();
    void listsTheShippedLanguagesInOrder();
};

void TestClipFiles::namesTheFileByDigitAndLanguage_data()
{
    QTest::addColumn<std::string>("folder");
    QTest::addColumn<std::string>("language");
    QTest::addColumn<int>("number");
    QTest::addColumn<std::string>("path");

    QTest::newRow("digit") << std::string("C:/Apps/Diag") << std::string("en_US") << 7
                           << std::string("C:/Apps/Diag/audio_files/en_US/7_en_US.wav");
    QTest::newRow("negative number") << std::string("/opt/d") << std::string("ja_JP") << -3
                                     << std::string("/opt/d/audio_files/ja_JP/-3_ja_JP.wav");
    QTest::newRow("more than a digit") << std::string("/opt/d") << std::string("de_DE") << 12
                                       << std::string("/opt/d/audio_files/de_DE/12_de_DE.wav");
    QTest::newRow("no folder, no language") << std::string() << std::string() << 0 << std::string("/audio_files//0_.wav");
}

void TestClipFiles::namesTheFileByDigitAndLanguage()
{
    QFETCH(std::string, folder);
    QFETCH(std::string, language);
    QFETCH(int, number);
    QTEST(clipPath(folder, language, number), "path");
}

void TestClipFiles::wantsAllTenClips_data()
{
    QTest::addColumn<int>("missing");
    for (int digit = 0; digit <= 9; ++digit)
        QTest::addRow("without %d", digit) << digit;
}

void TestClipFiles::wantsAllTenClips()
{
    QFETCH(int, missing);
    const QTemporaryDir folder;
    wave_files::writeClipSet(folder.path(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
    QVERIFY(allClipsPresent(folder.path().toStdString(), "en_US"));

    QVERIFY(QFile::remove(wave_files::clip(folder.path(), QStringLiteral("en_US"), missing)));
    QVERIFY(!allClipsPresent(folder.path().toStdString(), "en_US"));
}

void TestClipFiles::refusesAFolderInPlaceOfAClip()
{
    const QTemporaryDir folder;
    wave_files::writeClipSet(folder.path(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
    const QString clip = wave_files::clip(folder.path(), QStringLiteral("en_US"), 7);
    QVERIFY(QFile::remove(clip));
    QVERIFY(QDir().mkdir(clip));
    QVERIFY(!allClipsPresent(folder.path().toStdString(), "en_US"));
}

void TestClipFiles::findsClipsBelowANonAsciiFolder()
{
    const QTemporaryDir root;
    const QString folder = root.path() + QStringLiteral("/Prüfung-スピーカー");
    wave_files::writeClipSet(folder, QStringLiteral("ja_JP"), wave_files::wave(48000, 2, 10));
    QVERIFY(allClipsPresent(folder.toStdString(), "ja_JP"));
}

void TestClipFiles::findsNothingWithoutALanguage()
{
    const QTemporaryDir folder;
    wave_files::writeClipSet(folder.path(), QStringLiteral("en_US"), wave_files::wave(48000, 2, 10));
    QVERIFY(!allClipsPresent(folder.path().toStdString(), ""));
}

void TestClipFiles::listsTheShippedLanguagesInOrder()
{
    const std::vector<std::string> expected{"pt_BR", "en_US", "es_ES", "fr_FR", "it_IT", "de_DE", "nl_NL", "zh_CN", "ja_JP"};
    QVERIFY(std::equal(clipLanguages.begin(), clipLanguages.end(), expected.begin(), expected.end()));
}

QTEST_GUILESS_MAIN(TestClipFiles)
#include "tst_clip_files.moc"
