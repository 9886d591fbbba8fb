// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace host {

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
    QString testName() const; ///< translated
    QString deviceName() const;
    /// Why there is no pass: in English, in the language of the run where that is another, and the keys. Empty of a pass.
    QString reason() const;
    QString languageTag() const; ///< as HTML wants it: "pt-BR"; "en" when there is none
    double seconds() const;
    /// What else describes the run, as pairs of a title and a value; empty values left out.
    QList<std::pair<QString, QString>> facts() const;
    /// What an unattended run of the microphone test heard, in the same form; empty for another run.
    QList<std::pair<QString, QString>> recordingFacts() const;
    /// The digits as a table, header first.
    QList<QStringList> digitRows() const;

private:
    QJsonObject report_;
};

/// Without the control characters that XML and consoles cannot take: they become U+FFFD. Line ends and tabs stay.
QString plainText(QString text);

} // namespace host
