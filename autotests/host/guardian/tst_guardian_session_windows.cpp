// SPDX-License-Identifier: Apache-2.0
#include "host/guardian/guardian_session.h"

#include "autotests/support/fake_core_audio_windows.h"

#include <QDir>
#include <QFile>
#include <QObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace host;
using fake_core_audio::Endpoint;
using fake_core_audio::FakeCoreAudio;
using Ending = GuardianSession::Ending;

namespace {

const std::vector<Endpoint> before{
    {L"one", 0.25F, false, L"Speakers"}, {L"two", 0.0F, true, L"Headset"}, {L"three", 0.5F, true, std::nullopt}};

const QStringList allNames{QStringLiteral("Speakers"), QStringLiteral("Headset"), QStringLiteral("three")};

void addAll(FakeCoreAudio &fake)
{
    for (const Endpoint &endpoint : before)
        fake.endpoints.push_back(std::make_shared<Endpoint>(endpoint));
}

void raise(FakeCoreAudio &fake)
{
    for (const auto &endpoint : fake.endpoints) {
        endpoint->level = 1.0F;
        endpoint->muted = false;
    }
}

void verifyEverythingGivenBack(const FakeCoreAudio &fake)
{
    QCOMPARE(fake.referenceCount(), 0);
    QCOMPARE(fake.outstandingIdCount(), std::size_t{0});
    QCOMPARE(fake.openApartmentCount(), 0);
    QCOMPARE(fake.complaints(), std::vector<std::string>());
}

} // namespace

class TestGuardianSessionWindows : public QObject {
    Q_OBJECT

private slots:
    void init();
    void putsBackWhatWasRaised_data();
    void putsBackWhatWasRaised();
    void putsBackNothingWhereNothingDiffers();
    void completesARestoreThatAnAddedEndpointStopped();
    void remembersAVanishedEndpointUntilItComesBack();
    void leavesAnEndpointThatComesBackChanged_data();
    void leavesAnEndpointThatComesBackChanged();
    void remembersNoMoreThanTheLatestVanishedEndpoints();
    void saysWhereAVanishedEndpointCannotBeNoted();
    void triesAgainAfterAFailure();
    void keepsTheNoteWhenAnEndpointRefuses();
    void putsBackLeftovers();
    void leavesWhatWasSetSince();
    void clampsTheLevelsOfANote();
    void prefersAFormerRunsVolumes();
    void notesNothingWhenTheVolumesAreUnknown();

private:
    QString folder() const { return folder_->path(); }
    NoteFile note() const { return NoteFile(folder()); }

    std::unique_ptr<QTemporaryDir> folder_;
};

void TestGuardianSessionWindows::init() { folder_ = std::make_unique<QTemporaryDir>(); }

void TestGuardianSessionWindows::putsBackWhatWasRaised_data()
{
    QTest::addColumn<bool>("isNormal");
    QTest::newRow("normal end") << true;
    QTest::newRow("host lost") << false;
}

void TestGuardianSessionWindows::putsBackWhatWasRaised()
{
    QFETCH(const bool, isNormal);
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    QVERIFY(note().read());
    raise(fake);
    const PutBack result = session.end(isNormal ? Ending::normal : Ending::hostsLoss);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, allNames);
    QCOMPARE(fake.states(), before);
    QVERIFY(!QFile::exists(note().path()));
    verifyEverythingGivenBack(fake);
}

void TestGuardianSessionWindows::putsBackNothingWhereNothingDiffers()
{
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    fake.endpoints[0]->level = 0.2501F; // as a driver rounds it
    fake.events.clear();
    const PutBack result = session.end(Ending::normal);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, QStringList());
    for (const auto call : fake.calls())
        QVERIFY(call != fake_core_audio::Call::setLevel);
}

void TestGuardianSessionWindows::completesARestoreThatAnAddedEndpointStopped()
{
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    raise(fake);
    fake.endpoints[0]->level = before[0].level; // restored before the new one stopped it
    const Endpoint added{L"plugged in just now", 0.4F, true, L"Dock"};
    fake.endpoints.insert(fake.endpoints.begin() + 1, std::make_shared<Endpoint>(added));
    const PutBack result = session.end(Ending::normal);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, (QStringList{QStringLiteral("Headset"), QStringLiteral("three")}));
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[0], added, before[1], before[2]}));
}

void TestGuardianSessionWindows::remembersAVanishedEndpointUntilItComesBack()
{
    QString complaint;
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    raise(fake);
    const auto unplugged = fake.endpoints.front();
    fake.endpoints.erase(fake.endpoints.begin());
    QVERIFY(session.end(Ending::hostsLoss).isDone);
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[1], before[2]}));

    GuardianSession next(folder()); // a whole run without it
    QVERIFY(next.begin());
    QVERIFY(next.end(Ending::normal).isDone);
    fake.endpoints.insert(fake.endpoints.begin(), unplugged); // as loud as it went
    QCOMPARE(putBackLeftovers(folder(), complaint).names, QStringList{QStringLiteral("Speakers")});
    QCOMPARE(fake.states(), before);
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianSessionWindows::leavesAnEndpointThatComesBackChanged_data()
{
    QTest::addColumn<float>("level");
    QTest::addColumn<float>("levelAfterwards");
    QTest::newRow("set by its owner meanwhile") << 0.6F << 0.6F;
    QTest::newRow("as loud as it went") << 1.0F << before[0].level;
}

// In the midst of a later run.
void TestGuardianSessionWindows::leavesAnEndpointThatComesBackChanged()
{
    QFETCH(const float, level);
    FakeCoreAudio fake;
    addAll(fake);
    QVERIFY(note().write({{{before[0].level, before[0].muted, u"one", {}}}, {}}));
    const auto unplugged = fake.endpoints.front();
    fake.endpoints.erase(fake.endpoints.begin());
    GuardianSession session(folder());
    QVERIFY(session.begin());
    unplugged->level = level;
    fake.endpoints.insert(fake.endpoints.begin(), unplugged);
    QVERIFY(session.end(Ending::normal).isDone);
    QTEST(fake.endpoints.front()->level, "levelAfterwards");
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianSessionWindows::remembersNoMoreThanTheLatestVanishedEndpoints()
{
    QString complaint;
    FakeCoreAudio fake;
    ostra::audio::EndpointVolumes gone;
    for (char16_t number = 0; number < 100; ++number)
        gone.push_back({0.5F, false, std::u16string(1, static_cast<char16_t>(u'\u4e00' + number)), {}});
    QVERIFY(note().write({gone, {}}));
    QVERIFY(putBackLeftovers(folder(), complaint).isDone);
    const auto kept = note().read();
    QVERIFY(kept);
    QCOMPARE(kept->volumes.size(), std::size_t{64});
    QCOMPARE(kept->volumes.back().id, gone.back().id);
}

void TestGuardianSessionWindows::saysWhereAVanishedEndpointCannotBeNoted()
{
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    raise(fake);
    fake.endpoints.erase(fake.endpoints.begin());
    QVERIFY(QFile::remove(note().path()) && QDir().mkpath(note().path())); // no file can be written in the place of a folder
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("endpoints that are not there could not be noted")));
    QVERIFY(session.end(Ending::normal).isDone);
    QCOMPARE(fake.states(), (std::vector<Endpoint>{before[1], before[2]}));
}

void TestGuardianSessionWindows::triesAgainAfterAFailure()
{
    FakeCoreAudio fake;
    addAll(fake);
    GuardianSession session(folder());
    QVERIFY(session.begin());
    raise(fake);
    fake.failAt(0);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("trying again")));
    QVERIFY(session.end(Ending::normal).isDone);
    QCOMPARE(fake.states(), before);
}

void TestGuardianSessionWindows::keepsTheNoteWhenAnEndpointRefuses()
{
    QString complaint;
    FakeCoreAudio fake;
    addAll(fake);
    {
        GuardianSession session(folder());
        QVERIFY(session.begin());
        raise(fake);
        fake.endpoints[1]->id = std::nullopt; // every pass ends here
        for (int i = 1; i < guardianPatience.tryCount; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("trying again")));
        const PutBack result = session.end(Ending::normal);
        QVERIFY(!result.isDone);
        QCOMPARE(result.names, QStringList{QStringLiteral("Speakers")});
    }
    QVERIFY(note().read());
    fake.endpoints[1]->id = L"two";
    QCOMPARE(putBackLeftovers(folder(), complaint).names, (QStringList{QStringLiteral("Headset"), QStringLiteral("three")}));
    QCOMPARE(fake.states(), before);
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianSessionWindows::putsBackLeftovers()
{
    QString complaint;
    FakeCoreAudio fake;
    addAll(fake);
    {
        GuardianSession session(folder());
        QVERIFY(session.begin());
        raise(fake);
        QVERIFY(!putBackLeftovers(folder(), complaint).isDone); // while it lives
        QVERIFY2(complaint.startsWith(QStringLiteral("Another run")), qPrintable(complaint));
        QCOMPARE(fake.endpoints[0]->level, 1.0F);
    }
    const PutBack result = putBackLeftovers(folder(), complaint);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, allNames);
    QCOMPARE(fake.states(), before);
    QVERIFY(!QFile::exists(note().path()));
}

// Only the last one still stands where the lost run has put it.
void TestGuardianSessionWindows::leavesWhatWasSetSince()
{
    QString complaint;
    FakeCoreAudio fake;
    addAll(fake);
    {
        GuardianSession session(folder());
        QVERIFY(session.begin());
    }
    raise(fake);
    fake.endpoints[0]->level = 0.2F;
    fake.endpoints[1]->level = 0.9F;
    fake.endpoints[2]->level = 0.998F; // as a driver rounds it
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Speakers was changed since")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Headset was changed since")));
    const PutBack result = putBackLeftovers(folder(), complaint);
    QVERIFY(result.isDone);
    QCOMPARE(result.names, QStringList{QStringLiteral("three")});
    QCOMPARE(result.left, (QStringList{QStringLiteral("Speakers"), QStringLiteral("Headset")}));
    QCOMPARE(fake.endpoints[0]->level, 0.2F);
    QCOMPARE(fake.endpoints[1]->level, 0.9F);
    QVERIFY(!fake.endpoints[1]->muted);
    QCOMPARE(fake.endpoints[2]->level, before[2].level);
    QVERIFY(!QFile::exists(note().path()));
}

void TestGuardianSessionWindows::clampsTheLevelsOfANote()
{
    QString complaint;
    FakeCoreAudio fake;
    addAll(fake);
    QVERIFY(note().write({{{7.5F, false, u"one", {}}, {-3.0F, true, u"two", {}}, {0.5F, true, u"three", {}}}, {}}));
    raise(fake);
    QVERIFY(putBackLeftovers(folder(), complaint).isDone);
    QCOMPARE(fake.endpoints[0]->level, 1.0F);
    QCOMPARE(fake.endpoints[1]->level, 0.0F);
    verifyEverythingGivenBack(fake);
}

// Its note is older than what the endpoints have now, which may be a raised level.
void TestGuardianSessionWindows::prefersAFormerRunsVolumes()
{
    FakeCoreAudio fake;
    addAll(fake);
    {
        GuardianSession session(folder());
        QVERIFY(session.begin());
    }
    raise(fake);
    fake.endpoints[0]->id = std::nullopt;
    GuardianSession session(folder());
    QVERIFY(session.begin()); // the former run's volumes cannot be put back yet
    fake.endpoints[0]->id = L"one";
    QStringList names = session.end(Ending::normal).names;
    QStringList all = allNames;
    names.sort();
    all.sort();
    QCOMPARE(names, all);
    QCOMPARE(fake.states(), before);
}

void TestGuardianSessionWindows::notesNothingWhenTheVolumesAreUnknown()
{
    FakeCoreAudio fake;
    addAll(fake);
    fake.failAt(0);
    GuardianSession session(folder());
    QVERIFY(!session.begin());
    QCOMPARE(session.errorText(), QStringLiteral("The sound system does not tell its volumes."));
    QVERIFY(!QFile::exists(note().path()));
    QVERIFY(!QFile::exists(lockFilePath(folder())));
}

QTEST_GUILESS_MAIN(TestGuardianSessionWindows)
#include "tst_guardian_session_windows.moc"
