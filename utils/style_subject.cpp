// SPDX-License-Identifier: Apache-2.0
#include "utils/style_subject.h"

#include "utils/style_rules.h"

#include <algorithm>

namespace ostra::utils {

namespace {

bool isOneOf(const QString &text, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [&text](const char *name) { return text == QLatin1StringView(name); });
}

bool isNameCharacter(QChar unit) { return unit.isLetterOrNumber() || unit == u'_' || unit == u'-' || unit.unicode() > 0x7F; }

QStringView takeName(QStringView text, qsizetype &at)
{
    const qsizetype start = at;
    while (at < text.size() && isNameCharacter(text[at]))
        ++at;
    return text.sliced(start, at - start);
}

QStringView lastPart(QStringView selector)
{
    const QStringView afterBlank = splitOutsideOpaque(selector, u' ').last();
    return afterBlank.contains(u'>') ? splitOutsideOpaque(afterBlank, u'>').last() : afterBlank;
}

// The part behind ":" or "::", `at` standing on the colon.
void takePseudo(StyleSubject &subject, QStringView text, qsizetype &at)
{
    const bool isSubControl = text.sliced(at).startsWith(u"::");
    at += isSubControl ? 2 : 1;
    const bool isNegated = at < text.size() && text[at] == u'!';
    at += isNegated ? 1 : 0;
    const QString name = takeName(text, at).toString().toLower();
    if (isSubControl)
        subject.subControl = name;
    else if (!isNegated)
        subject.states.append(name);
}

} // namespace

StyleSubject StyleSubject::of(const QString &selector)
{
    StyleSubject subject;
    const QStringView text = lastPart(selector);
    for (qsizetype at = 0; at < text.size();) {
        if (text[at] == u':') {
            takePseudo(subject, text, at);
        } else if (text[at] == u'#') {
            subject.name = takeName(text, ++at).toString();
        } else if (text[at] == u'[') {
            const qsizetype end = text.indexOf(u']', at);
            at = end < 0 ? text.size() : end + 1;
        } else if (isNameCharacter(text[at])) {
            subject.type = takeName(text, at).toString();
        } else {
            ++at;
        }
    }
    return subject;
}

StyleSubject StyleSubject::withState(const QString &state) const
{
    StyleSubject subject = *this;
    subject.states.append(state);
    return subject;
}

bool StyleSubject::isAnyOf(std::initializer_list<const char *> types) const { return isOneOf(type, types); }

bool StyleSubject::isPart(std::initializer_list<const char *> subControls) const { return isOneOf(subControl, subControls); }

bool StyleSubject::hasAnyOf(std::initializer_list<const char *> wanted) const
{
    return std::any_of(states.begin(), states.end(), [wanted](const QString &state) { return isOneOf(state, wanted); });
}

} // namespace ostra::utils
