// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

/// A Qt stylesheet as a table: selector, then property. Pure text, no Qt widget is touched.
namespace ostra::utils {

struct StyleDeclaration {
    QString property; ///< lower case; as written when it names a Qt property ("qproperty-...")
    QString value;    ///< trimmed, "!important" included
};

/// The declarations of one selector, in the order in which they take effect.
class StyleRule {
public:
    explicit StyleRule(const QString &selector) : selector_(selector) {}

    /// As the table's key: comments gone, white space outside quotes collapsed. May be a list, "QLabel, QFrame".
    const QString &selector() const { return selector_; }

    /// Null text when the rule does not have the property.
    QString value(const QString &property) const;

    /// Adds or replaces. A replaced property moves to the end, because the later of "border" and "border-left" decides; one
    /// that is !important gives way only to another.
    void set(const QString &property, const QString &value);

    QList<StyleDeclaration> declarations() const;

private:
    /// Up to so many entries are searched one by one, which most rules never exceed.
    static constexpr qsizetype searchedCount = 12;

    qsizetype find(const QString &property) const; ///< -1 when there is none
    void append(const QString &property, const QString &value);

    QString selector_;
    QList<StyleDeclaration> entries_;     // a replaced one stays behind without its name
    QHash<QString, qsizetype> positions_; // empty while the entries are few
};

/// Rules in the order of their first appearance; the rules of one selector are one rule.
class StyleRules {
public:
    /// Splits at "}", at ";" and at the first ":" of a declaration, none of them inside comments, quotes or url(). What Qt
    /// could not read is left out, since one such piece makes it refuse a whole sheet: a selector or a declaration that is
    /// none, at-rules, the rest of a rule that a nested "{" interrupts. Time is linear in the length of `sheet`.
    static StyleRules parse(const QString &sheet);

    /// Every rule as "selector {\n", a line "  property: value;\n" for each declaration, and "}\n".
    QString toText() const;

    /// The rule of a selector, appended when the table has none. Valid until the next call.
    StyleRule &rule(const QString &selector);

    bool contains(const QString &selector) const { return positions_.contains(selector); }
    const QList<StyleRule> &rules() const { return rules_; }

private:
    QList<StyleRule> rules_;
    QHash<QString, qsizetype> positions_;
};

/// `endOfOpaque` for a character that may begin such a piece.
qsizetype endOfOpaquePiece(QStringView text, qsizetype at);

/// Index behind what begins at `at` and must be read as a whole: a comment, a quoted text, url(...). `at` itself when nothing
/// of that kind begins there. A quote or url() that is left open ends with its line, a comment with the text.
inline qsizetype endOfOpaque(QStringView text, qsizetype at)
{
    // Asked about every character of a sheet; one of these begins all that is opaque.
    const char16_t unit = text[at].unicode();
    const bool mayBegin = unit == u'"' || unit == u'\'' || unit == u'/' || unit == u'u' || unit == u'U';
    return mayBegin ? endOfOpaquePiece(text, at) : at;
}

/// The pieces between `separator`s that stand outside comments, quotes, url() and brackets.
QList<QStringView> splitOutsideOpaque(QStringView text, QChar separator);

} // namespace ostra::utils
