// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "utils/style_subject.h"

#include <QColor>
#include <QList>
#include <QString>

/// Which system colours stand together in the high-contrast style. docs/high-contrast.md has it as a table.
namespace ostra::utils {

/// The system colours of the style, as QColor::name.
struct ContrastColors {
    QString background;
    QString buttonFace;
    QString buttonText;
    QString grayText;
    QString infoText;
    QString highlight;
    QString highlightText; ///< where it is below 7:1 on highlight: that, window or window text, whichever stands out most
    QString windowText;
    QString window;
    QString windowFrame;
    QString gradientActiveCaption;

    /// From the list of 30 (`systemColorIndices`). A colour that the list does not reach is black.
    static ContrastColors of(const QList<QColor> &systemColors);
};

/// Text and fill are a pair that contrast themes are made for; no other two colours meet as text and background.
enum class SurfaceKind {
    Window,   ///< window text on window: pages, labels, fields, items of lists
    Button,   ///< button text on button face: what can be pressed
    Selected, ///< highlighted text on highlight: hovered, pressed, selected, checked
    Disabled, ///< grey text on window
};

struct Surface {
    SurfaceKind kind = SurfaceKind::Window;
    QString text;
    QString fill;
    QString line; ///< frames, outlines and grids
};

Surface surfaceOf(const StyleSubject &subject, const ContrastColors &colors);

/// Whether the subject is a part that never carries text: indicators, handles, arrows, separators.
bool isWithoutText(const StyleSubject &subject);

} // namespace ostra::utils
