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

bool beginsComment(QStringView text, qsizetype at) { return text[at] == u'/' && at + 1 < text.size() && text[at + 1] == u'*'; }

bool beginsUrl(QStringView text, qsizetype at)
{
    return (text[at] == u'u' || text[at] == u'U') && text.sliced(at).startsWith(u"url(", Qt::CaseInsensitive);
}

// The text up to `stop` outside of what is opaque; `at` moves behind that character, or to the end. Comments become a blank.
QString takeUntil(QStringView text, QChar stop, qsizetype &at, bool &isStopped)
{
    QString taken;
    qsizetype start = at; // of what was not taken yet: taken in long pieces, not character by character
    while (at < text.size()) {
        const qsizetype end = endOfOpaque(text, at);
        if (end == at && text[at] == stop)
            break;
        const qsizetype next = qMax(end, at + 1);
        if (beginsComment(text, at)) {
            taken += text.sliced(start, at - start);
            taken += u' ';
            start = next;
        }
        at = next;
    }
    taken += text.sliced(start, at - start);
    isStopped = at < text.size();
    at += isStopped ? 1 : 0;
    return taken;
}

QString collapsed(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = qMax(endOfOpaque(text, at), at + 1);
        if (end > at + 1)
            result += text.sliced(at, end - at);
        else if (!text[at].isSpace())
            result += text[at];
        else if (!result.isEmpty() && result.back() != u' ')
            result += u' ';
        at = end;
    }
    while (!result.isEmpty() && result.back().isSpace())
        result.chop(1);
    return result;
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
    StyleRule *rule = nullptr;
    const QList<QStringView> pieces = splitOutsideOpaque(body, u';');
    for (const QStringView piece : pieces) {
        const qsizetype colon = piece.indexOf(u':');
        if (colon < 0)
            continue;
        const QString property = propertyKey(piece.first(colon));
        const QString value = collapsed(piece.sliced(colon + 1));
        if (!isStyleProperty(property) || !isStyleValue(value))
            continue;
        if (rule == nullptr) // a rule without any declaration is none
            rule = &rules.rule(selector);
        rule->set(property, value);
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

qsizetype endOfOpaquePiece(QStringView text, qsizetype at)
{
    if (text[at] == u'"' || text[at] == u'\'')
        return endOfQuoted(text, at);
    if (beginsComment(text, at))
        return endOfComment(text, at);
    return beginsUrl(text, at) ? endOfUrl(text, at) : at;
}

QList<QStringView> splitOutsideOpaque(QStringView text, QChar separator)
{
    QList<QStringView> pieces;
    qsizetype start = 0;
    qsizetype depth = 0;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = endOfOpaque(text, at);
        if (end > at) {
            at = end;
            continue;
        }
        const QChar unit = text[at];
        if (unit == separator && depth == 0) {
            pieces.append(text.sliced(start, at - start));
            start = at + 1;
        } else if (unit == u'(' || unit == u'[') {
            ++depth;
        } else if (depth > 0 && (unit == u')' || unit == u']')) {
            --depth;
        }
        ++at;
    }
    pieces.append(text.sliced(start));
    return pieces;
}

qsizetype StyleRule::find(const QString &property) const
{
    if (!positions_.isEmpty())
        return positions_.value(property, -1);
    for (qsizetype position = 0; position < entries_.size(); ++position) {
        if (entries_.at(position).property == property)
            return position;
    }
    return -1;
}

void StyleRule::append(const QString &property, const QString &value)
{
    if (!positions_.isEmpty())
        positions_.insert(property, entries_.size());
    entries_.append({property, value});
    if (!positions_.isEmpty() || entries_.size() <= searchedCount)
        return;
    for (qsizetype position = 0; position < entries_.size(); ++position)
        positions_.insert(entries_.at(position).property, position);
}

QString StyleRule::value(const QString &property) const
{
    const qsizetype position = find(property);
    return position < 0 ? QString() : entries_.at(position).value;
}

void StyleRule::set(const QString &property, const QString &value)
{
    if (const qsizetype position = find(property); position >= 0) {
        StyleDeclaration &former = entries_[position];
        if (isImportant(former.value) && !isImportant(value))
            return;
        former = {};
    }
    append(property, value);
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
        text.append(rule.selector()).append(u" {\n");
        const QList<StyleDeclaration> declarations = rule.declarations();
        for (const StyleDeclaration &declaration : declarations)
            text.append(u"  ").append(declaration.property).append(u": ").append(declaration.value).append(u";\n");
        text.append(u"}\n");
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
