// SPDX-License-Identifier: Apache-2.0
#include "utils/style_rules.h"

#include "utils/style_grammar.h"

#include <QStringList>

namespace ostra::utils {

namespace {

qsizetype endOfQuoted(QStringView text, qsizetype at)
{
    const QChar quote = text[at];
    for (++at; at < text.size() && text[at] != u'\n'; ++at) {
        if (text[at] == quote)
            return at + 1;
        if (text[at] == u'\\')
            ++at;
    }
    return qMin(at, text.size());
}

qsizetype endOfUrl(QStringView text, qsizetype at)
{
    at += 4; // behind "url("
    while (at < text.size() && text[at] != u'\n') {
        if (text[at] == u')')
            return at + 1;
        at = text[at] == u'"' || text[at] == u'\'' ? endOfQuoted(text, at) : at + 1;
    }
    return at;
}

qsizetype endOfComment(QStringView text, qsizetype at)
{
    const qsizetype end = text.indexOf(QStringLiteral("*/"), at + 2);
    return end < 0 ? text.size() : end + 2;
}

bool beginsComment(QStringView text, qsizetype at) { return text.sliced(at).startsWith(u"/*"); }

// The text up to `stop` outside of what is opaque; `at` moves behind that character, or to the end. Comments become a blank.
QString takeUntil(QStringView text, QChar stop, qsizetype &at, bool &isStopped)
{
    QString taken;
    while (at < text.size()) {
        const qsizetype end = endOfOpaque(text, at);
        if (end == at && text[at] == stop)
            break;
        const qsizetype next = qMax(end, at + 1);
        if (beginsComment(text, at))
            taken += u' ';
        else
            taken += text.sliced(at, next - at);
        at = next;
    }
    isStopped = at < text.size();
    at += isStopped ? 1 : 0;
    return taken;
}

QString collapsed(QStringView text)
{
    QString result;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = qMax(endOfOpaque(text, at), at + 1);
        if (!text[at].isSpace())
            result += text.sliced(at, end - at);
        else if (!result.endsWith(u' '))
            result += u' ';
        at = end;
    }
    return result.trimmed();
}

QString selectorKey(QStringView text)
{
    QStringList selectors;
    const QList<QStringView> pieces = splitOutsideOpaque(text, u',');
    for (const QStringView piece : pieces)
        selectors.append(collapsed(piece));
    return selectors.join(QStringLiteral(", "));
}

QString propertyKey(QStringView name)
{
    const QString trimmed = name.trimmed().toString();
    return trimmed.startsWith(u"qproperty-") ? trimmed : trimmed.toLower();
}

void addDeclarations(StyleRules &rules, const QString &selector, QStringView body)
{
    const QList<QStringView> pieces = splitOutsideOpaque(body, u';');
    for (const QStringView piece : pieces) {
        const qsizetype colon = piece.indexOf(u':');
        if (colon < 0)
            continue;
        const QString property = propertyKey(piece.first(colon));
        const QString value = collapsed(piece.sliced(colon + 1));
        if (isStyleProperty(property) && isStyleValue(value))
            rules.rule(selector).set(property, value);
    }
}

void addRule(StyleRules &rules, QStringView piece)
{
    qsizetype at = 0;
    bool hasBody = false;
    const QString selector = selectorKey(takeUntil(piece, u'{', at, hasBody));
    if (!hasBody || !isStyleSelector(selector))
        return;
    bool isInterrupted = false;
    QString body = takeUntil(piece, u'{', at, isInterrupted);
    if (isInterrupted) // what stands before a nested brace is that rule's selector
        body.truncate(body.lastIndexOf(u';') + 1);
    addDeclarations(rules, selector, body);
}

bool isImportant(const QString &value)
{
    const qsizetype mark = value.lastIndexOf(u'!');
    return mark >= 0 && value.sliced(mark + 1).trimmed().compare(u"important", Qt::CaseInsensitive) == 0;
}

} // namespace

qsizetype endOfOpaque(QStringView text, qsizetype at)
{
    if (text[at] == u'"' || text[at] == u'\'')
        return endOfQuoted(text, at);
    if (beginsComment(text, at))
        return endOfComment(text, at);
    return text.sliced(at).startsWith(u"url(", Qt::CaseInsensitive) ? endOfUrl(text, at) : at;
}

QList<QStringView> splitOutsideOpaque(QStringView text, QChar separator)
{
    QList<QStringView> pieces;
    qsizetype start = 0;
    qsizetype depth = 0;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = endOfOpaque(text, at);
        if (end == at && text[at] == separator && depth == 0) {
            pieces.append(text.sliced(start, at - start));
            start = at + 1;
        } else if (end == at) {
            depth += text[at] == u'(' || text[at] == u'[' ? 1 : 0;
            depth -= depth > 0 && (text[at] == u')' || text[at] == u']') ? 1 : 0;
        }
        at = qMax(end, at + 1);
    }
    pieces.append(text.sliced(start));
    return pieces;
}

QString StyleRule::value(const QString &property) const
{
    const auto position = positions_.constFind(property);
    return position == positions_.cend() ? QString() : entries_.at(*position).value;
}

void StyleRule::set(const QString &property, const QString &value)
{
    const auto position = positions_.constFind(property);
    if (position != positions_.cend()) {
        StyleDeclaration &former = entries_[*position];
        if (isImportant(former.value) && !isImportant(value))
            return;
        former = {};
    }
    positions_.insert(property, entries_.size());
    entries_.append({property, value});
}

QList<StyleDeclaration> StyleRule::declarations() const
{
    QList<StyleDeclaration> present;
    for (const StyleDeclaration &entry : entries_) {
        if (!entry.property.isEmpty())
            present.append(entry);
    }
    return present;
}

StyleRules StyleRules::parse(const QString &sheet)
{
    StyleRules rules;
    for (qsizetype at = 0; at < sheet.size();) {
        bool isClosed = false; // an open rule at the end of the sheet counts as closed there
        addRule(rules, takeUntil(sheet, u'}', at, isClosed));
    }
    return rules;
}

QString StyleRules::toText() const
{
    QString text;
    for (const StyleRule &rule : rules_) {
        text += rule.selector() + QStringLiteral(" {\n");
        const QList<StyleDeclaration> declarations = rule.declarations();
        for (const StyleDeclaration &declaration : declarations)
            text +=
                QStringLiteral("  ") + declaration.property + QStringLiteral(": ") + declaration.value + QStringLiteral(";\n");
        text += QStringLiteral("}\n");
    }
    return text;
}

StyleRule &StyleRules::rule(const QString &selector)
{
    const auto position = positions_.constFind(selector);
    if (position != positions_.cend())
        return rules_[*position];
    positions_.insert(selector, rules_.size());
    rules_.append(StyleRule(selector));
    return rules_.last();
}

} // namespace ostra::utils
