// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/clip_check.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

using host::ClipCheck;
using host::ClipFault;

namespace {

const QStringList english{QStringLiteral("en_US")};

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A folder of ten English clips and their manifest.
class ClipFolder {
public:
    ClipFolder()
    {
        QDir(folder_.path()).mkpath(QStringLiteral("en_US"));
        QByteArray manifest;
        for (int digit = 0; digit < 10; ++digit) {
            const QByteArray bytes = "clip " + QByteArray::number(digit);
            isMade_ = write(clip(digit), bytes) && isMade_;
            manifest +=
                QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + "  " + name(digit).toUtf8() + '\n';
        }
        isMade_ = write(this->manifest(), manifest) && isMade_;
    }

    bool isMade() const { return isMade_; }
    QString path() const { return folder_.path(); }
    QString manifest() const { return folder_.filePath(QStringLiteral("manifest.sha256")); }
    QString clip(int digit) const { return folder_.filePath(name(digit)); }
    static QString name(int digit) { return QStringLiteral("en_US/%1_en_US.wav").arg(digit); }

private:
    QTemporaryDir folder_;
    bool isMade_ = true;
};

} // namespace

class TestClipCheck : public QObject {
    Q_OBJECT

private slots:
    void findsTheSuppliedClipsIntact();
    void findsWhatDiffers();
    void findsWhatIsMissing();
    void findsWhatTheManifestDoesNotName();
    void findsALanguageWithoutClips();
    void checksEveryLanguage();
    void checksTheSentence();
    void tellsThatThereIsNoManifest();
    void readsALongManifestOfAnotherMaking();
};

void TestClipCheck::findsTheSuppliedClipsIntact()
{
    const ClipFolder clips;
    QVERIFY(clips.isMade());
    const ClipCheck check = host::checkClips(clips.path(), english);
    QVERIFY(check.isIntact());
    QCOMPARE(check.intactCount, 10);
}

void TestClipCheck::findsWhatDiffers()
{
    const ClipFolder clips;
    QVERIFY(write(clips.clip(3), "clip 4"));
    const ClipCheck check = host::checkClips(clips.path(), english);
    QVERIFY(!check.isIntact());
    QCOMPARE(check.intactCount, 9);
    QCOMPARE(check.faults.size(), 1);
    QCOMPARE(check.faults[0].file, ClipFolder::name(3));
    QVERIFY(check.faults[0].fault == ClipFault::differs);
}

void TestClipCheck::findsWhatIsMissing()
{
    const ClipFolder clips;
    QVERIFY(QFile::remove(clips.clip(9)));
    const ClipCheck check = host::checkClips(clips.path(), english);
    QCOMPARE(check.faults.size(), 1);
    QVERIFY(check.faults[0].fault == ClipFault::missing);
}

void TestClipCheck::findsWhatTheManifestDoesNotName()
{
    const ClipFolder clips;
    QVERIFY(write(clips.manifest(), QByteArray()));
    const ClipCheck check = host::checkClips(clips.path(), english);
    QVERIFY(check.hasManifest);
    QCOMPARE(check.faults.size(), 10);
    QVERIFY(check.faults[0].fault == ClipFault::unlisted);
}

void TestClipCheck::findsALanguageWithoutClips()
{
    const ClipFolder clips;
    const ClipCheck check = host::checkClips(clips.path(), {QStringLiteral("ja_JP")});
    QCOMPARE(check.faults.size(), 10);
    QCOMPARE(check.intactCount, 0);
}

void TestClipCheck::checksEveryLanguage()
{
    const ClipFolder clips;
    const ClipCheck check = host::checkClips(clips.path(), {QStringLiteral("en_US"), QStringLiteral("ja_JP")});
    QCOMPARE(check.intactCount, 10);
    QCOMPARE(check.faults.size(), 10);
    QCOMPARE(check.faults[0].file, QStringLiteral("ja_JP/0_ja_JP.wav"));
}

void TestClipCheck::checksTheSentence()
{
    const ClipFolder clips;
    const QString sentence = QDir(clips.path()).filePath(QLatin1String(host::sentenceClip));
    QVERIFY(host::checkSentence(clips.path()).faults.first().fault == ClipFault::missing);
    QVERIFY(QDir(clips.path()).mkpath(QStringLiteral("operator")) && write(sentence, "spoken"));
    QVERIFY(host::checkSentence(clips.path()).faults.first().fault == ClipFault::unlisted);
    const QByteArray hash = QCryptographicHash::hash("spoken", QCryptographicHash::Sha256).toHex();
    QVERIFY(write(clips.manifest(), hash + "  operator/sentence_en_US.wav\n"));
    QVERIFY(host::checkSentence(clips.path()).isIntact());
    QVERIFY(write(sentence, "silent"));
    QVERIFY(host::checkSentence(clips.path()).faults.first().fault == ClipFault::differs);
}

void TestClipCheck::tellsThatThereIsNoManifest()
{
    const ClipFolder clips;
    QVERIFY(QFile::remove(clips.manifest()));
    QVERIFY(QFile::remove(clips.clip(0)));
    const ClipCheck check = host::checkClips(clips.path(), english);
    QVERIFY(!check.hasManifest);
    QVERIFY(!check.isIntact());
    QCOMPARE(check.faults.size(), 1);
}

void TestClipCheck::readsALongManifestOfAnotherMaking()
{
    const ClipFolder clips;
    QFile file(clips.manifest());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray manifest = file.readAll();
    file.close();
    QVERIFY(write(clips.manifest(),
                  "\n\r\nshort\n" + QByteArray(20'000, 'x') + "\n" +
                      manifest.toUpper().replace("EN_US", "en_US").replace(".WAV", ".wav").replace("\n", "\r\n")));
    QVERIFY(host::checkClips(clips.path(), english).isIntact());
}

QTEST_GUILESS_MAIN(TestClipCheck)
#include "tst_clip_check.moc"
