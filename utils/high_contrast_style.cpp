// SPDX-License-Identifier: Apache-2.0
#include "utils/high_contrast_style.h"

#include "utils/contrast_surface.h"
#include "utils/high_contrast_dialog_rules.h"
#include "utils/style_colors.h"
#include "utils/style_rules.h"

#include <QSet>
#include <QStringList>

namespace ostra::utils {

namespace {

const QString textProperty = QStringLiteral("color");
const QString fillProperty = QStringLiteral("background-color");

struct Icon {
    QString selector;
    StyleDeclaration declaration;
};

// Selectors of one list whose declarations become the same.
struct Group {
    StyleSubject subject;
    Surface surface;
    QStringList selectors;
};

bool isIcon(const QString &property) { return property == u"image" || property == u"icon"; }

// Only at the end: a path may hold an exclamation mark as well.
QString withoutImportance(const QString &value)
{
    const qsizetype mark = value.lastIndexOf(u'!');
    const bool isImportant = mark >= 0 && value.sliced(mark + 1).trimmed().compare(u"important", Qt::CaseInsensitive) == 0;
    return isImportant ? value.first(mark).trimmed() : value;
}

bool isNamedButton(const StyleSubject &subject)
{
    return subject.isAnyOf({"QPushButton", "QToolButton"}) && !subject.name.isEmpty() && subject.states.isEmpty() &&
           subject.subControl.isEmpty();
}

// Their text stands on the container's fill.
bool isWithoutOwnFill(const StyleSubject &subject)
{
    return subject.subControl.isEmpty() &&
           subject.isAnyOf({"", "QWidget", "QFrame", "QLabel", "QRadioButton", "QCheckBox", "QGroupBox"});
}

class Rewriter {
public:
    Rewriter(const StyleRules &source, const ContrastColors &colors, const IconRecolouring &recolour)
        : source_(source), colors_(colors), recolour_(recolour)
    {}

    StyleRules rewritten()
    {
        for (const StyleRule &rule : source_.rules())
            rewriteRule(rule);
        addStatesOfNamedWidgets();
        addDialogRules(target_, colors_);
        addIconsOfStates();
        return target_;
    }

private:
    QList<Group> groupsOf(const StyleRule &rule);
    void rewriteRule(const StyleRule &rule);
    void rewriteDeclaration(const Group &group, StyleRule &target, const StyleDeclaration &declaration);
    void complete(const Group &group, const StyleRule &source, StyleRule &target) const;
    QString colorFor(const QString &property, const Surface &surface) const;
    QString recoloured(const QString &value, const QString &color) const { return recolour_ ? recolour_(value, color) : value; }
    void addStatesOfNamedWidgets();
    void addState(const QString &state, bool buttonsOnly);
    void addIconsOfStates();

    const StyleRules &source_;
    const ContrastColors &colors_;
    const IconRecolouring &recolour_;
    StyleRules target_;
    QSet<QString> selectors_; // every single one of the source
    QStringList named_;       // those of them that colour the text of a named widget in its usual state
    QList<Icon> icons_;       // of named buttons
};

QList<Group> Rewriter::groupsOf(const StyleRule &rule)
{
    QList<Group> groups;
    QHash<QString, qsizetype> positions;
    const QList<QStringView> selectors = splitOutsideOpaque(rule.selector(), u',');
    for (const QStringView view : selectors) {
        const QString selector = view.trimmed().toString();
        selectors_.insert(selector);
        const StyleSubject subject = StyleSubject::of(selector);
        const Surface surface = surfaceOf(subject, colors_);
        const QString key = QStringList{QString::number(static_cast<int>(surface.kind)), surface.fill, surface.line,
                                        QString::number((isWithoutText(subject) ? 1 : 0) + (isWithoutOwnFill(subject) ? 2 : 0))}
                                .join(u' ');
        if (!positions.contains(key)) {
            positions.insert(key, groups.size());
            groups.append({subject, surface, {}});
        }
        groups[positions.value(key)].selectors.append(selector);
    }
    return groups;
}

void Rewriter::rewriteRule(const StyleRule &rule)
{
    const QList<StyleDeclaration> declarations = rule.declarations();
    const QList<Group> groups = groupsOf(rule);
    for (const Group &group : groups) {
        StyleRule &target = target_.rule(group.selectors.join(QStringLiteral(", ")));
        for (const StyleDeclaration &declaration : declarations)
            rewriteDeclaration(group, target, declaration);
        complete(group, rule, target);
        const bool hasText = !target.value(textProperty).isNull();
        for (const QString &selector : group.selectors) {
            const StyleSubject subject = StyleSubject::of(selector);
            if (hasText && !subject.name.isEmpty() && subject.states.isEmpty() && subject.subControl.isEmpty())
                named_.append(selector);
        }
    }
}

void Rewriter::rewriteDeclaration(const Group &group, StyleRule &target, const StyleDeclaration &declaration)
{
    const auto &[property, value] = declaration;
    if (!isIcon(property)) {
        // Importance would carry one half of a pair into the rules of other pairs.
        const QString plain = hasColor(value) ? withoutImportance(value) : value;
        target.set(property, withColor(plain, colorFor(property, group.surface)));
        return;
    }
    target.set(property, recoloured(value, group.surface.text));
    for (const QString &selector : group.selectors) {
        if (isNamedButton(StyleSubject::of(selector)))
            icons_.append({selector, declaration});
    }
}

QString Rewriter::colorFor(const QString &property, const Surface &surface) const
{
    if (property == u"selection-color")
        return colors_.highlightText;
    if (property == u"selection-background-color")
        return colors_.highlight;
    if (property.startsWith(u"border") || property.startsWith(u"outline") || property == u"gridline-color")
        return surface.line;
    return property.contains(u"background") ? surface.fill : surface.text;
}

// The rule that decides on the text decides on the fill as well, so that no text comes to stand on the fill of another pair.
void Rewriter::complete(const Group &group, const StyleRule &source, StyleRule &target) const
{
    if (isWithoutText(group.subject))
        return;
    const QString fill = source.value(fillProperty) + u' ' + source.value(QStringLiteral("background"));
    const bool hasText = !source.value(textProperty).isNull();
    const SurfaceKind kind = group.surface.kind;
    if (hasColor(fill)) {
        if (!hasText)
            target.set(textProperty, group.surface.text);
    } else if (fill != u" ") { // see-through: the text stands on a window
        if (hasText || kind == SurfaceKind::Button)
            target.set(textProperty, kind == SurfaceKind::Disabled ? colors_.grayText : colors_.windowText);
    } else if (hasText && kind != SurfaceKind::Window && (kind != SurfaceKind::Disabled || !isWithoutOwnFill(group.subject))) {
        target.set(fillProperty, group.surface.fill);
    }
}

// A rule by name hides the states of the rules by class, so each named widget gets the states that its sheet leaves out.
void Rewriter::addStatesOfNamedWidgets()
{
    named_.removeDuplicates();
    addState(QStringLiteral("hover"), true);
    addState(QStringLiteral("pressed"), true);
    addState(QStringLiteral("focus"), true);
    addState(QStringLiteral("disabled"), false);
}

void Rewriter::addState(const QString &state, bool buttonsOnly)
{
    for (const QString &selector : std::as_const(named_)) {
        const QString withState = selector + u':' + state;
        const StyleSubject subject = StyleSubject::of(withState);
        const bool isButton = subject.isAnyOf({"QPushButton", "QToolButton"});
        if (selectors_.contains(withState) || (buttonsOnly && !isButton))
            continue;
        const Surface surface = surfaceOf(subject, colors_);
        StyleRule &rule = target_.rule(withState);
        if (state == u"focus") {
            rule.set(QStringLiteral("border"), QStringLiteral("2px solid ") + surface.line);
            continue;
        }
        rule.set(textProperty, surface.text);
        if (!isWithoutOwnFill(subject))
            rule.set(fillProperty, surface.fill);
        if (isButton && surface.kind == SurfaceKind::Disabled)
            rule.set(QStringLiteral("border"), QStringLiteral("2px dotted ") + surface.line);
    }
}

void Rewriter::addIconsOfStates()
{
    for (const Icon &icon : std::as_const(icons_)) {
        for (const char *state : {"hover", "pressed", "disabled"}) {
            const QString selector = icon.selector + u':' + QLatin1StringView(state);
            const QString color = surfaceOf(StyleSubject::of(selector), colors_).text;
            const QString value = recoloured(icon.declaration.value, color);
            if (value != icon.declaration.value)
                target_.rule(selector).set(icon.declaration.property, value);
        }
    }
}

} // namespace

QString highContrastStyleSheet(const QString &sheet, const QList<QColor> &systemColors, const IconRecolouring &recolour)
{
    const StyleRules source = StyleRules::parse(sheet);
    const ContrastColors colors = ContrastColors::of(systemColors);
    return Rewriter(source, colors, recolour).rewritten().toText();
}

} // namespace ostra::utils
