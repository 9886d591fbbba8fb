// SPDX-License-Identifier: Apache-2.0
#include "autotests/support/fake_sal.h"
#include "autotests/support/process_facts.h"
#include "autotests/support/theme_message.h"
#include "contract/style_manager.h"
#include "utils/accessible_dialog_base.h"
#include "utils/high_contrast_event_filter.h"
#include "utils/screen_sources.h"

#include <QDir>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace ostra::utils;
using accessibility::AccessibleDialogBase;
using event_filters::HighContrastEventFilter;
using theme_message::RestyleCounter;

namespace {

constexpr int bound = 10000; // ms; the designed delay is 100
constexpr int messageCount = 100;
#ifdef Q_OS_WIN
constexpr std::size_t handleSlack = 8; // the system opens some for itself now and then; Wine tells of none at all
// Windows has a thread for precise timers, of which each change takes one; it ends a while after them.
constexpr int threadEndLimit = bound;
#else
constexpr std::size_t handleSlack = 0;
constexpr int threadEndLimit = 0;
#endif

bool &isHighContrast()
{
    static bool isOn = true;
    return isOn;
}

class IconStyle final : public style_manager::StyleManager {
public:
    std::string Stylesheet() const override { return R"(QLabel { image: url(":/icons/audio/play.svg"); })"; }
};

void sendThemeMessages(const QObject &dialog)
{
    auto *filter = dialog.findChild<HighContrastEventFilter *>();
    for (int sent = 0; sent < messageCount; ++sent)
        QVERIFY(theme_message::isTakenBy(*filter));
}

} // namespace

style_manager::StyleManager *style_manager::StyleManager::instance()
{
    static IconStyle style;
    return &style;
}

/// A hundred changes of the theme at once, and what they take of the system.
class TestThemeStorm : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { isHighContrast() = true; }
    void everyChangeTakesAFileForEachIconUntilTheDialogGoes();
    void changesAwayFromHighContrastTakeNothing();
    void changesThatTheirDialogDoesNotLiveToSeeTakeNothing();

private:
    qsizetype fileCount() const
    {
        const QDir folder(root_.filePath(QStringLiteral("temp")));
        return folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot).size();
    }
    void holdsNoMoreThan(const process_facts::Facts &before, std::size_t handleCount) const;

    QTemporaryDir root_;
};

void TestThemeStorm::initTestCase()
{
    fake_sal::state().temporaryPath = root_.path().toStdString();
    screenSources().highContrastOn = [] { return isHighContrast(); };
    screenSources().systemColor = [](int) -> std::uint32_t { return 0xFFFFFFU; };
    const AccessibleDialogBase first(nullptr); // what the libraries open once and keep
}

void TestThemeStorm::holdsNoMoreThan(const process_facts::Facts &before, std::size_t handleCount) const
{
    const process_facts::Facts facts = process_facts::now();
    QVERIFY2(facts.handles <= before.handles + handleCount + handleSlack, process_facts::text(facts).c_str());
    QTRY_VERIFY2_WITH_TIMEOUT(process_facts::now().threads <= before.threads, process_facts::text(process_facts::now()).c_str(),
                              threadEndLimit);
}

// Two switches never share a file, since the dialog may still paint with the one before; so files grow while it lives, by one
// for each icon and change, each with one handle, and by nothing else.
void TestThemeStorm::everyChangeTakesAFileForEachIconUntilTheDialogGoes()
{
    const process_facts::Facts before = process_facts::now();
    auto dialog = std::make_unique<AccessibleDialogBase>(nullptr);
    dialog->ensurePolished();
    QCOMPARE(fileCount(), 1);
    const RestyleCounter counter(*dialog);
    sendThemeMessages(*dialog);
    QTRY_COMPARE_WITH_TIMEOUT(counter.count, messageCount, bound);
    QCOMPARE(fileCount(), 1 + messageCount);
    holdsNoMoreThan(before, 1 + messageCount);
    dialog.reset();
    QCOMPARE(fileCount(), 0);
    holdsNoMoreThan(before, 0);
}

void TestThemeStorm::changesAwayFromHighContrastTakeNothing()
{
    const process_facts::Facts before = process_facts::now();
    auto dialog = std::make_unique<AccessibleDialogBase>(nullptr);
    dialog->ensurePolished();
    const RestyleCounter counter(*dialog);
    isHighContrast() = false;
    sendThemeMessages(*dialog);
    QTRY_COMPARE_WITH_TIMEOUT(counter.count, messageCount, bound);
    QCOMPARE(fileCount(), 1);
    holdsNoMoreThan(before, 1);
    dialog.reset();
    QCOMPARE(fileCount(), 0);
    holdsNoMoreThan(before, 0);
}

void TestThemeStorm::changesThatTheirDialogDoesNotLiveToSeeTakeNothing()
{
    const process_facts::Facts before = process_facts::now();
    auto dialog = std::make_unique<AccessibleDialogBase>(nullptr);
    sendThemeMessages(*dialog);
    QCOMPARE(fileCount(), 1);
    dialog.reset();
    {
        AccessibleDialogBase later(nullptr); // its turns come behind those of the one that is gone
        const RestyleCounter counter(later);
        sendThemeMessages(later);
        QTRY_COMPARE_WITH_TIMEOUT(counter.count, messageCount, bound);
    }
    QCOMPARE(fileCount(), 0);
    holdsNoMoreThan(before, 0);
}

QTEST_MAIN(TestThemeStorm)
#include "tst_theme_storm.moc"
