// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace host {

/// One line of a report.
struct ReportFact {
    QString title;
    QString value;
    bool isTranslated = false; ///< the value is in the language of the run
};

/// What every written format says of a report, read from its JSON form. A value that is missing is an empty text.
class ReportView {
public:
    explicit ReportView(QJsonObject report) : report_(std::move(report)) {}

    QString text(const char *key) const;
    bool flag(const char *key) const;
    QJsonArray list(const char *key) const;
    QStringList lines(const char *key) const;

    /// Code of the verdict; 4 (not completed) where the report has none.
    int code() const;
    QString verdictName() const;
    bool isMicrophoneTest() const;
    QString testKey() const;
    QString testName() const;           ///< English
    QString translatedTestName() const; ///< in the language of the run; empty where that is English
    QString deviceName() const;
    QString hostName() const; ///< of the machine; empty where it is not known
    /// Why there is no pass: in English, in the language of the run where that is another, and the keys; of a failure also
    /// that no person told it. Empty of a pass.
    QString reason() const;
    /// The same in English with its keys, without who answered.
    QString reasonInEnglish() const;
    /// A message in English, and in the language of the run where that is another; empty otherwise.
    QString messageText(const QJsonValue &message) const;
    QString translatedMessage(const QJsonValue &message) const;
    bool isEnglish() const; ///< the language of the run
    /// What the device tells about itself: English labels with their keys, and values.
    QList<ReportFact> properties() const;
    QString languageTag() const; ///< as HTML wants it: "pt-BR"; "en" when there is none
    double seconds() const;
    /// What else describes the run; empty values left out.
    QList<ReportFact> facts() const;
    /// What an unattended run of the microphone test heard; empty for another run.
    QList<ReportFact> recordingFacts() const;
    /// The digits as a table, header first.
    QList<QStringList> digitRows() const;

private:
    QString volume(const char *key, const char *when) const;
    void addWarnings(QList<ReportFact> &facts) const;
    void addMachine(QList<ReportFact> &facts) const;

    QJsonObject report_;
};

/// Without the control characters that XML and consoles cannot take: they become U+FFFD. Line ends and tabs stay.
QString plainText(QString text);

} // namespace host
