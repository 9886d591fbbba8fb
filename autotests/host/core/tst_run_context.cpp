// SPDX-License-Identifier: Apache-2.0
#include "host/core/run_context.h"

#include "contract/abstract_widget_wrapper.h"
#include "contract/input_request.h"
#include "contract/result_codes.h"
#include "host/core/prompter.h"

#include <QObject>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <vector>

namespace {

class RecordingPrompter final : public host::Prompter {
public:
    void runWidget(ostra::AbstractWidgetWrapper &widget) override
    {
        note(QStringLiteral("widget"));
        widget.exec(nullptr, nullptr);
    }
    std::uint32_t ask(const QString &title, const QString &text) override
    {
        note(QStringLiteral("ask %1 %2").arg(title, text));
        return questionAnswer;
    }
    bool accept(const QString &title, const QString &text) override
    {
        note(QStringLiteral("accept %1 %2").arg(title, text));
        return accepts;
    }
    bool canAsk() const override { return isThere; }
    void dismissAll() override { note(QStringLiteral("dismiss")); }

    QStringList calls;
    QThread *thread = nullptr;
    std::uint32_t questionAnswer = host::prompt_answer::yes;
    bool accepts = true;
    bool isThere = true;

private:
    void note(const QString &call)
    {
        calls.append(call);
        thread = QThread::currentThread();
    }
};

class CountingWidget final : public ostra::AbstractWidgetWrapper {
public:
    int exec(QWidget * /*parent*/, QObject * /*argument*/) override { return ++runCount; }
    int runCount = 0;
};

} // namespace

class TestRunContext : public QObject {
    Q_OBJECT

private slots:
    void handsEveryServiceToTheTest();
    void recordsProgressInItsOrder();
    void recordsMessagesWithTheirLevel();
    void runsAWidget();
    void readsOptionsAsQuestionOrPrompt_data();
    void readsOptionsAsQuestionOrPrompt();
    void writesTheAnswerOfAQuestion_data();
    void writesTheAnswerOfAQuestion();
    void declinesAPrompt();
    void survivesANullRequest();
    void tellsWhetherSomebodyIsThere();
    void keepsEventsRaised();
    void asksOnItsOwnThreadForATestOnAnother();
    void collectsFromSeveralThreads();
    void turnsEveryCodeOfAStoppedRunIntoNotCompleted_data();
    void turnsEveryCodeOfAStoppedRunIntoNotCompleted();
    void keepsTheCodeOfARunThatWasNotStopped();
    void asksNothingMoreAfterAStop();
};

void TestRunContext::handsEveryServiceToTheTest()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    QVERIFY(context.component() == nullptr);
    QVERIFY(context.messages() != nullptr);
    QVERIFY(context.reporter() != nullptr);
    QVERIFY(context.events() != nullptr);
    QVERIFY(!context.continueOnOutcome());
}

void TestRunContext::recordsProgressInItsOrder()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    const QSignalSpy progressed(&context, &host::RunContext::progressed);
    context.reporter()->report(0, "");
    context.reporter()->report(100, "USER_DID_NOT_REPORT_SOUND");
    context.reporter()->report(4000, "");
    host::RunRecord record;
    context.complete(0, record);
    QCOMPARE(record.progress.size(), 3);
    QCOMPARE(record.progress[0].percent, 0U);
    QCOMPARE(record.progress[1].percent, 100U);
    QCOMPARE(record.progress[1].text, QStringLiteral("USER_DID_NOT_REPORT_SOUND"));
    QCOMPARE(record.progress[2].percent, 100U);
    QCOMPARE(progressed.size(), 3);
    QCOMPARE(progressed[1][1].toString(), QStringLiteral("USER_DID_NOT_REPORT_SOUND"));
}

void TestRunContext::recordsMessagesWithTheirLevel()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    const QSignalSpy added(&context, &host::RunContext::messageAdded);
    context.messages()->addMessage("AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE", 2, 0);
    context.messages()->addMessage("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS", 0, 0);
    host::RunRecord record;
    context.complete(1, record);
    QCOMPARE(record.messages.size(), 2);
    QCOMPARE(record.messages[0].level, ostra::message_level::error);
    QCOMPARE(record.messages[1].text, QStringLiteral("POSSIBLE_DEFECTIVE_COMPONENTS: SPEAKERS"));
    QCOMPARE(record.messages[1].level, ostra::message_level::note);
    QCOMPARE(added.size(), 2);
}

void TestRunContext::runsAWidget()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    CountingWidget widget;
    ostra::InputRequest request("T", "", 5, 2, 0); // a widget outranks what the options say
    request.widget = &widget;
    context.requestInput(&request);
    QCOMPARE(widget.runCount, 1);
    QCOMPARE(prompter.calls, QStringList{QStringLiteral("widget")});
}

void TestRunContext::readsOptionsAsQuestionOrPrompt_data()
{
    QTest::addColumn<QList<std::uint32_t>>("options");
    QTest::addColumn<QString>("call");
    QTest::newRow("question") << QList<std::uint32_t>{5, 2, 0} << QStringLiteral("ask T X");
    QTest::newRow("instructions") << QList<std::uint32_t>{1, 1, 1} << QStringLiteral("accept T X");
    QTest::newRow("dialog's options") << QList<std::uint32_t>{1, 3, 0} << QStringLiteral("accept T X");
    QTest::newRow("first differs") << QList<std::uint32_t>{4, 2, 0} << QStringLiteral("accept T X");
    QTest::newRow("second differs") << QList<std::uint32_t>{5, 3, 0} << QStringLiteral("accept T X");
    QTest::newRow("third differs") << QList<std::uint32_t>{5, 2, 1} << QStringLiteral("accept T X");
}

void TestRunContext::readsOptionsAsQuestionOrPrompt()
{
    QFETCH(const QList<std::uint32_t>, options);
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    ostra::InputRequest request("T", "X", options[0], options[1], options[2]);
    context.requestInput(&request);
    QTEST(prompter.calls.join(u' '), "call");
    QCOMPARE(request.answer, prompter.calls.first().startsWith(QStringLiteral("ask")) ? 3U : 1U);
}

void TestRunContext::writesTheAnswerOfAQuestion_data()
{
    QTest::addColumn<std::uint32_t>("answer");
    QTest::newRow("yes") << std::uint32_t{3};
    QTest::newRow("no") << std::uint32_t{4};
    QTest::newRow("dismissed") << std::uint32_t{0};
}

void TestRunContext::writesTheAnswerOfAQuestion()
{
    QFETCH(const std::uint32_t, answer);
    RecordingPrompter prompter;
    prompter.questionAnswer = answer;
    host::RunContext context(nullptr, prompter);
    ostra::InputRequest request("T", "X", 5, 2, 0);
    request.answer = 77;
    context.requestInput(&request);
    QCOMPARE(request.answer, answer);
}

void TestRunContext::declinesAPrompt()
{
    RecordingPrompter prompter;
    prompter.accepts = false;
    host::RunContext context(nullptr, prompter);
    ostra::InputRequest request("T", "X", 1, 1, 1);
    request.answer = 77;
    context.requestInput(&request);
    QCOMPARE(request.answer, 0U);
}

void TestRunContext::survivesANullRequest()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    context.requestInput(nullptr);
    QVERIFY(prompter.calls.isEmpty());
}

void TestRunContext::tellsWhetherSomebodyIsThere()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    QVERIFY(context.reporter()->canReceiveInput());
    prompter.isThere = false;
    QVERIFY(!context.reporter()->canReceiveInput());
}

void TestRunContext::keepsEventsRaised()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    QCOMPARE(context.events()->pendingEvents(), 0U);
    context.raiseEvents(0x4);
    context.raiseEvents(0x100);
    QCOMPARE(context.events()->pendingEvents(), 0x104U);
    QCOMPARE(context.events()->pendingEvents(), 0x104U);
}

void TestRunContext::asksOnItsOwnThreadForATestOnAnother()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    CountingWidget widget;
    std::atomic<std::uint32_t> answer = 0;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        ostra::InputRequest dialog("T", "X", 1, 3, 0);
        dialog.widget = &widget;
        context.requestInput(&dialog);
        ostra::InputRequest question("T", "X", 5, 2, 0);
        context.requestInput(&question);
        answer = question.answer;
    }));
    worker->start();
    QTRY_VERIFY_WITH_TIMEOUT(worker->isFinished(), 10'000);
    QCOMPARE(answer.load(), 3U);
    QCOMPARE(widget.runCount, 1);
    QCOMPARE(prompter.calls.size(), 2);
    QCOMPARE(prompter.thread, QThread::currentThread());
}

void TestRunContext::collectsFromSeveralThreads()
{
    constexpr int threadCount = 4;
    constexpr int callCount = 500;
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    std::vector<std::unique_ptr<QThread>> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back(QThread::create([&context, thread] {
            for (int call = 0; call < callCount; ++call) {
                context.addMessage("KEY", 0, 0);
                context.report(1, "KEY");
                context.raiseEvents(std::uint32_t{1} << static_cast<unsigned>(thread));
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait(30'000));
    host::RunRecord record;
    context.complete(0, record);
    QCOMPARE(record.messages.size(), threadCount * callCount);
    QCOMPARE(record.progress.size(), threadCount * callCount);
    QCOMPARE(context.pendingEvents(), 0xFU);
}

void TestRunContext::turnsEveryCodeOfAStoppedRunIntoNotCompleted_data()
{
    QTest::addColumn<std::uint32_t>("moduleCode");
    for (const std::uint32_t code : {0U, 1U, 3U, 4U, 6U})
        QTest::addRow("code %u", code) << code;
}

void TestRunContext::turnsEveryCodeOfAStoppedRunIntoNotCompleted()
{
    QFETCH(const std::uint32_t, moduleCode);
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    context.stop();
    QVERIFY(context.continueOnOutcome());
    QCOMPARE(prompter.calls, QStringList{QStringLiteral("dismiss")});
    host::RunRecord record;
    context.complete(moduleCode, record);
    QCOMPARE(record.code, ostra::result::notCompleted);
    QCOMPARE(record.moduleCode, moduleCode);
    QVERIFY(record.wasStopped);
    QVERIFY(!record.reason.isEmpty());
}

void TestRunContext::keepsTheCodeOfARunThatWasNotStopped()
{
    RecordingPrompter prompter;
    const host::RunContext context(nullptr, prompter);
    host::RunRecord record;
    context.complete(1, record);
    QCOMPARE(record.code, 1U);
    QCOMPARE(record.moduleCode, 1U);
    QVERIFY(!record.wasStopped);
    QVERIFY(record.reason.isEmpty());
}

void TestRunContext::asksNothingMoreAfterAStop()
{
    RecordingPrompter prompter;
    host::RunContext context(nullptr, prompter);
    context.stop();
    prompter.calls.clear();
    ostra::InputRequest question("T", "X", 5, 2, 0);
    context.requestInput(&question);
    ostra::InputRequest prompt("T", "X", 1, 1, 1);
    context.requestInput(&prompt);
    QVERIFY(prompter.calls.isEmpty());
    QCOMPARE(question.answer, 0U);
    QCOMPARE(prompt.answer, 0U);
    CountingWidget widget;
    ostra::InputRequest dialog("T", "X", 1, 3, 0);
    dialog.widget = &widget;
    context.requestInput(&dialog);
    QCOMPARE(widget.runCount, 1);
}

QTEST_GUILESS_MAIN(TestRunContext)
#include "tst_run_context.moc"
