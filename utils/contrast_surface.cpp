// SPDX-License-Identifier: Apache-2.0
#include "utils/contrast_surface.h"

#include "utils/color_contrast.h"
#include "utils/system_colors.h"

namespace ostra::utils {

namespace {

constexpr double readable = 7.0; // WCAG 2.1, 1.4.6, contrast (enhanced)

// One of the system's own themes (Desert) stays just below with its highlighted text (6.999), where the window's colour reaches
// 7.27; a palette of the user's may be far worse.
QString textOnHighlight(const ContrastColors &colors)
{
    const QColor fill(colors.highlight);
    const auto ratio = [&fill](const QString &name) { return contrastRatio(QColor(name), fill); };
    QString best = colors.highlightText;
    if (ratio(best) >= readable)
        return best;
    for (const QString &other : {colors.window, colors.windowText})
        best = ratio(other) > ratio(best) ? other : best;
    return best;
}

bool isSplitterHandle(const StyleSubject &subject) { return subject.type == u"QSplitter" && subject.subControl == u"handle"; }

// A filled card with a digit that was typed: it is read, not pressed, whatever its state.
bool isFilledCard(const StyleSubject &subject) { return subject.name.endsWith(u"_input_set"); }

bool isControlPart(const StyleSubject &subject)
{
    return subject.isPart({"indicator", "up-button", "down-button", "drop-down", "up-arrow", "down-arrow", "left-arrow",
                           "right-arrow", "menu-button", "menu-indicator", "menu-arrow", "handle", "section", "tab",
                           "close-button", "float-button", "scroller", "tear"});
}

bool isPressable(const StyleSubject &subject)
{
    return isControlPart(subject) ||
           (subject.subControl.isEmpty() &&
            subject.isAnyOf({"QPushButton", "QToolButton", "QCommandLinkButton", "QComboBox", "QAbstractButton"}));
}

SurfaceKind kindOf(const StyleSubject &subject)
{
    if (isFilledCard(subject))
        return SurfaceKind::Selected;
    if (subject.hasAnyOf({"disabled"}))
        return SurfaceKind::Disabled;
    // An indicator tells its state by its shape.
    if (!subject.isPart({"indicator"}) && subject.hasAnyOf({"hover", "pressed", "selected", "checked", "on"}))
        return SurfaceKind::Selected;
    return isPressable(subject) ? SurfaceKind::Button : SurfaceKind::Window;
}

QString lineOf(const StyleSubject &subject, SurfaceKind kind, const ContrastColors &colors)
{
    switch (kind) {
    case SurfaceKind::Disabled:
        return colors.grayText;
    case SurfaceKind::Selected: // the ring of a card must differ from the card
        return subject.states.isEmpty() ? colors.highlight : colors.highlightText;
    case SurfaceKind::Button:
        return subject.hasAnyOf({"focus", "checked"}) ? colors.highlight : colors.buttonText;
    case SurfaceKind::Window:
        break;
    }
    if (subject.hasAnyOf({"focus"}))
        return colors.highlight;
    if (subject.type == u"QToolTip")
        return colors.infoText;
    const bool isField = subject.isAnyOf({"QLineEdit", "QPlainTextEdit", "QTextEdit", "QTextBrowser", "QSpinBox",
                                          "QDoubleSpinBox", "QAbstractSpinBox", "QDateEdit", "QTimeEdit", "QDateTimeEdit"});
    return isField ? colors.windowText : colors.windowFrame;
}

// Parts without text take colours that no text is made for.
QString fillOfPart(const StyleSubject &subject, const Surface &surface, const ContrastColors &colors)
{
    if (isSplitterHandle(subject))
        return colors.gradientActiveCaption;
    if (subject.subControl == u"separator")
        return colors.windowFrame;
    if (subject.type == u"QScrollBar" && subject.subControl.isEmpty())
        return colors.background;
    if (subject.subControl == u"handle")
        return surface.kind == SurfaceKind::Selected ? colors.highlight : surface.text;
    return surface.fill;
}

} // namespace

ContrastColors ContrastColors::of(const QList<QColor> &systemColors)
{
    const auto name = [&systemColors](int index) { return systemColors.value(systemColorPosition(index)).name(); };
    ContrastColors colors;
    colors.background = name(system_color::background);
    colors.buttonFace = name(system_color::buttonFace);
    colors.buttonText = name(system_color::buttonText);
    colors.grayText = name(system_color::grayText);
    colors.infoText = name(system_color::infoText);
    colors.highlight = name(system_color::highlight);
    colors.highlightText = name(system_color::highlightText);
    colors.windowText = name(system_color::windowText);
    colors.window = name(system_color::window);
    colors.windowFrame = name(system_color::windowFrame);
    colors.gradientActiveCaption = name(system_color::gradientActiveCaption);
    colors.highlightText = textOnHighlight(colors);
    return colors;
}

Surface surfaceOf(const StyleSubject &subject, const ContrastColors &colors)
{
    Surface surface{kindOf(subject), colors.windowText, colors.window, {}};
    if (surface.kind == SurfaceKind::Disabled)
        surface.text = colors.grayText;
    if (surface.kind == SurfaceKind::Selected) {
        surface.text = colors.highlightText;
        surface.fill = colors.highlight;
    }
    if (surface.kind == SurfaceKind::Button) {
        surface.text = colors.buttonText;
        surface.fill = colors.buttonFace;
    }
    surface.line = lineOf(subject, surface.kind, colors);
    surface.fill = fillOfPart(subject, surface, colors);
    return surface;
}

bool isWithoutText(const StyleSubject &subject)
{
    return subject.isPart({"indicator",  "handle",     "separator",  "chunk",       "groove",      "add-page",
                           "sub-page",   "add-line",   "sub-line",   "up-button",   "down-button", "drop-down",
                           "up-arrow",   "down-arrow", "left-arrow", "right-arrow", "menu-button", "menu-indicator",
                           "menu-arrow", "branch",     "corner",     "pane"}) ||
           subject.isAnyOf({"QScrollBar", "QSlider", "QSizeGrip", "QTableCornerButton"});
}

} // namespace ostra::utils
