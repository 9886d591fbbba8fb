// SPDX-License-Identifier: Apache-2.0
// The version block of the library's file, as the system reads it.
#include <QCoreApplication>
#include <QDir>
#include <QTest>

#include <windows.h>

#include <vector>

class TestFileVersion : public QObject {
    Q_OBJECT

private slots:
    void fileAndProductHaveNumbersOfTheirOwn();
};

void TestFileVersion::fileAndProductHaveNumbersOfTheirOwn()
{
    const QString path = QDir::toNativeSeparators(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../../../bundle/module_audio.dll")));
    const std::wstring file = path.toStdWString();
    const DWORD byteCount = GetFileVersionInfoSizeW(file.c_str(), nullptr);
    QVERIFY2(byteCount > 0, qPrintable(path));
    std::vector<char> block(byteCount);
    QVERIFY(GetFileVersionInfoW(file.c_str(), 0, byteCount, block.data()));
    void *value = nullptr;
    UINT valueByteCount = 0;
    QVERIFY(VerQueryValueW(block.data(), L"\\", &value, &valueByteCount));
    const auto *version = static_cast<const VS_FIXEDFILEINFO *>(value);
    QCOMPARE(version->dwFileVersionMS, (DWORD(5) << 16) | 12);
    QCOMPARE(version->dwFileVersionLS, DWORD(92));
    QCOMPARE(version->dwProductVersionMS, (DWORD(4) << 16) | 42);
    QCOMPARE(version->dwProductVersionLS, DWORD(92));
}

QTEST_GUILESS_MAIN(TestFileVersion)
#include "tst_file_version.moc"
