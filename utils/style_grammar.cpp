// SPDX-License-Identifier: Apache-2.0
#include "utils/style_grammar.h"

#include <QRegularExpression>

#include <algorithm>

namespace ostra::utils {

namespace {

// Qt takes characters beyond ASCII in quoted texts only. Possessive throughout: a text that does not match must not be tried in
// every other way.
QString identifier() { return QStringLiteral(R"re((?:-?[_A-Za-z][-_A-Za-z0-9]*+))re"); }
QString quoted() { return QStringLiteral(R"re((?:"(?:[^"\\\r\n\f]|\\[^\r\n\f])*+"|'(?:[^'\\\r\n\f]|\\[^\r\n\f])*+'))re"); }

QRegularExpression whole(const QString &pattern)
{
    QRegularExpression expression(QStringLiteral(R"(\A%1\z)").arg(pattern));
    expression.optimize();
    return expression;
}

QString selectorPattern()
{
    const QString attribute = QStringLiteral(R"re(\[ ?%1 ?(?:[~|^$*]?= ?(?:%1|%2) ?)?+\])re").arg(identifier(), quoted());
    const QString tail = QStringLiteral(R"re((?:[#.]%1|%2|::?!?%1))re").arg(identifier(), attribute);
    const QString compound = QStringLiteral(R"re((?:(?:\*|%1)%2*+|%2++))re").arg(identifier(), tail);
    const QString chain = QStringLiteral(R"re((?:%1(?:(?: ?> ?| )%1)*+))re").arg(compound);
    return QStringLiteral(R"re(%1(?: ?, ?%1)*+)re").arg(chain);
}

QString valuePattern()
{
    const QString url = QStringLiteral(R"re((?:[Uu][Rr][Ll]\( ?(?:%1|[-!#$%&*+./:?@\[\]^_~A-Za-z0-9]++) ?\)))re").arg(quoted());
    const QString number = QStringLiteral(R"re((?:[-+]?(?:[0-9]++(?:\.[0-9]++)?+|\.[0-9]++)(?:%|[A-Za-z]++)?+))re");
    const QString arguments = QStringLiteral(R"re((?(DEFINE)(?<arguments>\((?:[-+.,:#%/ \w]|(?&arguments))*+\))))re");
    const QString function = QStringLiteral("(?:%1(?&arguments))").arg(identifier());
    // Of all that may follow the sign Qt takes the colours only.
    const QString hash =
        QStringLiteral("(?:#(?:%1{12}|%1{9}|%1{8}|%1{6}|%1{3})(?![-_A-Za-z0-9]))").arg(QStringLiteral("[0-9A-Fa-f]"));
    const QString term =
        QStringLiteral("(?:") + QStringList{url, function, number, hash, quoted(), identifier()}.join(u'|') + u')';
    return arguments + term + QStringLiteral("(?: ?[,/]? ?") + term +
           QStringLiteral(R"re()*+(?: ?! ?[Ii][Mm][Pp][Oo][Rr][Tt][Aa][Nn][Tt])?+)re");
}

} // namespace

bool isStyleSelector(const QString &text)
{
    static const QRegularExpression expression = whole(selectorPattern());
    return expression.match(text).hasMatch();
}

bool isStyleProperty(const QString &text)
{
    const auto isLetter = [](QChar unit) {
        return unit == u'_' || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
    };
    const auto isFurther = [isLetter](QChar unit) { return isLetter(unit) || unit == u'-' || (unit >= u'0' && unit <= u'9'); };
    const QStringView name = text.startsWith(u'-') ? QStringView(text).sliced(1) : QStringView(text);
    return !name.isEmpty() && isLetter(name.front()) && std::all_of(name.begin() + 1, name.end(), isFurther);
}

bool isStyleValue(const QString &text)
{
    static const QRegularExpression expression = whole(valuePattern());
    return expression.match(text).hasMatch();
}

} // namespace ostra::utils
