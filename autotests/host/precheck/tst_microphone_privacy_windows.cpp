// SPDX-License-Identifier: Apache-2.0
#include "host/precheck/microphone_privacy.h"

#include <windows.h>

#include <QObject>
#include <QTest>

#include <string>

namespace {

const std::wstring store = L"Software\\Microsoft\\Windows\\CurrentVersion\\CapabilityAccessManager\\ConsentStore\\microphone";

bool setSwitch(const std::wstring &key, const std::wstring &value)
{
    const auto byteCount = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), L"Value", REG_SZ, value.c_str(), byteCount) == ERROR_SUCCESS;
}

} // namespace

// Runs in a prefix of Wine's own, whose consent store belongs to nobody.
class TestMicrophonePrivacy : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { RegDeleteTreeW(HKEY_CURRENT_USER, store.c_str()); }

    void isOpenWithoutASwitch() { QVERIFY(!host::isMicrophoneBlocked()); }
    void readsTheSwitches_data();
    void readsTheSwitches();
};

void TestMicrophonePrivacy::readsTheSwitches_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isBlocked");
    const QString desktop = QStringLiteral("\\NonPackaged");
    QTest::newRow("all, denied") << QString() << QStringLiteral("Deny") << true;
    QTest::newRow("all, allowed") << QString() << QStringLiteral("Allow") << false;
    QTest::newRow("desktop programs, denied") << desktop << QStringLiteral("Deny") << true;
    QTest::newRow("desktop programs, allowed") << desktop << QStringLiteral("Allow") << false;
    QTest::newRow("a text too long") << QString() << QString(300, u'D') << false;
}

void TestMicrophonePrivacy::readsTheSwitches()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, value);
    QVERIFY(setSwitch(store + folder.toStdWString(), value.toStdWString()));
    QTEST(host::isMicrophoneBlocked(), "isBlocked");
}

QTEST_GUILESS_MAIN(TestMicrophonePrivacy)
#include "tst_microphone_privacy_windows.moc"
