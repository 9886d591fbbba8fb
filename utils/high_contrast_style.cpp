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

// Functions, because a constant would be made when the library is loaded.
QString textProperty() { return QStringLiteral("color"); }
QString fillProperty() { return QStringLiteral("background-color"); }

struct Named {
    QString selector;
    StyleSubject subject;
};

// Selectors of one list whose declarations become the same.
struct Group {
    StyleSubject subject; // of the first
    Surface surface;
    bool hasNoText = false;
    bool hasNoFill = false;
    QList<Named> selectors;
};

struct Icon {
    Named button;
    StyleDeclaration declaration;
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

QString listOf(const QList<Named> &selectors)
{
    QString list;
    for (const Named &named : selectors)
        list.append(list.isEmpty() ? u"" : u", ").append(named.selector);
    return list;
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
    Group &groupOf(QList<Group> &groups, const StyleSubject &subject);
    void rewriteRule(const StyleRule &rule);
    void rewriteDeclaration(const Group &group, StyleRule &target, const StyleDeclaration &declaration);
    void complete(const Group &group, const StyleRule &source, StyleRule &target) const;
    QString colorFor(const QString &property, const Surface &surface) const;
    QString recoloured(const QString &value, const QString &color) const { return recolour_ ? recolour_(value, color) : value; }
    void addNamed(const Named &named);
    void addStatesOfNamedWidgets();
    void addState(const QString &state, bool buttonsOnly);
    void addIconsOfStates();

    const StyleRules &source_;
    const ContrastColors &colors_;
    const IconRecolouring &recolour_;
    StyleRules target_;
    QSet<QString> selectors_; // every single one of the source
    QList<Named> named_;      // those of them that colour the text of a named widget in its usual state
    QSet<QString> isNamed_;   // their selectors
    QList<Icon> icons_;       // of named buttons
};

// There are few different groups, however long a list of selectors is: some kinds, fills and lines.
Group &Rewriter::groupOf(QList<Group> &groups, const StyleSubject &subject)
{
    const Surface surface = surfaceOf(subject, colors_);
    const bool hasNoText = isWithoutText(subject);
    const bool hasNoFill = isWithoutOwnFill(subject);
    for (Group &group : groups) {
        if (group.surface.kind == surface.kind && group.surface.fill == surface.fill && group.surface.line == surface.line &&
            group.hasNoText == hasNoText && group.hasNoFill == hasNoFill)
            return group;
    }
    groups.append({subject, surface, hasNoText, hasNoFill, {}});
    return groups.last();
}

QList<Group> Rewriter::groupsOf(const StyleRule &rule)
{
    QList<Group> groups;
    const QList<QStringView> selectors = splitOutsideOpaque(rule.selector(), u',');
    for (const QStringView view : selectors) {
        const QString selector = view.trimmed().toString();
        selectors_.insert(selector);
        const StyleSubject subject = StyleSubject::of(selector);
        groupOf(groups, subject).selectors.append({selector, subject});
    }
    return groups;
}

void Rewriter::addNamed(const Named &named)
{
    if (!isNamed_.contains(named.selector)) {
        isNamed_.insert(named.selector);
        named_.append(named);
    }
}

void Rewriter::rewriteRule(const StyleRule &rule)
{
    const QList<StyleDeclaration> declarations = rule.declarations();
    const QList<Group> groups = groupsOf(rule);
    for (const Group &group : groups) {
        StyleRule &target = target_.rule(listOf(group.selectors));
        for (const StyleDeclaration &declaration : declarations)
            rewriteDeclaration(group, target, declaration);
        complete(group, rule, target);
        const bool hasText = !target.value(textProperty()).isNull();
        for (const Named &named : group.selectors) {
            const StyleSubject &subject = named.subject;
            if (hasText && !subject.name.isEmpty() && subject.states.isEmpty() && subject.subControl.isEmpty())
                addNamed(named);
        }
    }
}

void Rewriter::rewriteDeclaration(const Group &group, StyleRule &target, const StyleDeclaration &declaration)
{
    const auto &[property, value] = declaration;
    if (!isIcon(property)) {
        // Importance would carry one half of a pair into the rules of other pairs, and hide the frames of the focus.
        const bool isOurs = hasColor(value) || property.startsWith(u"border");
        const QString plain = isOurs ? withoutImportance(value) : value;
        target.set(property, withColor(plain, colorFor(property, group.surface)));
        return;
    }
    target.set(property, recoloured(value, group.surface.text));
    for (const Named &named : group.selectors) {
        if (isNamedButton(named.subject))
            icons_.append({named, declaration});
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
    if (group.hasNoText)
        return;
    const QString fill = source.value(fillProperty()) + u' ' + source.value(QStringLiteral("background"));
    const bool hasText = !source.value(textProperty()).isNull();
    const SurfaceKind kind = group.surface.kind;
    if (hasColor(fill)) {
        if (!hasText)
            target.set(textProperty(), group.surface.text);
    } else if (fill != u" ") { // see-through: the text stands on a window
        if (hasText || kind == SurfaceKind::Button)
            target.set(textProperty(), kind == SurfaceKind::Disabled ? colors_.grayText : colors_.windowText);
    } else if (hasText && kind != SurfaceKind::Window && (kind != SurfaceKind::Disabled || !group.hasNoFill)) {
        target.set(fillProperty(), group.surface.fill);
    }
}

// A rule by name hides the states of the rules by class, so each named widget gets the states that its sheet leaves out.
void Rewriter::addStatesOfNamedWidgets()
{
    addState(QStringLiteral("hover"), true);
    addState(QStringLiteral("pressed"), true);
    addState(QStringLiteral("focus"), true);
    addState(QStringLiteral("disabled"), false);
}

void Rewriter::addState(const QString &state, bool buttonsOnly)
{
    for (const Named &named : std::as_const(named_)) {
        const QString withState = named.selector + u':' + state;
        const StyleSubject subject = named.subject.withState(state);
        const bool isButton = subject.isAnyOf({"QPushButton", "QToolButton"});
        if (selectors_.contains(withState) || (buttonsOnly && !isButton))
            continue;
        const Surface surface = surfaceOf(subject, colors_);
        StyleRule &rule = target_.rule(withState);
        if (state == u"focus") {
            rule.set(QStringLiteral("border"), QStringLiteral("2px solid ") + surface.line);
            continue;
        }
        rule.set(textProperty(), surface.text);
        if (!isWithoutOwnFill(subject))
            rule.set(fillProperty(), surface.fill);
        if (isButton && surface.kind == SurfaceKind::Disabled)
            rule.set(QStringLiteral("border"), QStringLiteral("2px dotted ") + surface.line);
    }
}

void Rewriter::addIconsOfStates()
{
    for (const Icon &icon : std::as_const(icons_)) {
        for (const char *state : {"hover", "pressed", "disabled"}) {
            const StyleSubject subject = icon.button.subject.withState(QLatin1StringView(state));
            const QString value = recoloured(icon.declaration.value, surfaceOf(subject, colors_).text);
            if (value != icon.declaration.value)
                target_.rule(icon.button.selector + u':' + QLatin1StringView(state)).set(icon.declaration.property, value);
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
