// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// What a case expected and did not find.
class Findings {
public:
    explicit Findings(QString name) : name_(std::move(name)) {}

    void expect(bool isTrue, const QString &text);
    template <typename Value>
    void expectEqual(Value found, Value wanted, const char *what)
    {
        expect(found == wanted, QStringLiteral("%1 is %2 instead of %3").arg(QLatin1String(what)).arg(found).arg(wanted));
    }
    template <typename Value>
    void expectAtMost(Value found, Value most, const char *what)
    {
        expect(found <= most, QStringLiteral("%1 is %2, more than %3").arg(QLatin1String(what)).arg(found).arg(most));
    }
    void note(const QString &text) const;
    bool areGood() const { return failureCount_ == 0; }

private:
    QString name_;
    int failureCount_ = 0;
};
