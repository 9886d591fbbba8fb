// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRadioButton>

namespace ostra {

/// A choice whose text is a device's name: shown as it is, an ampersand included, and shortened in the middle where it is
/// wider than the button, which then tells the whole name as its tool tip. The text itself stays the name.
class DeviceRadioButton final : public QRadioButton {
public:
    explicit DeviceRadioButton(const QString &name, QWidget *parent = nullptr);

    /// Wide enough for the name in bold, as a stylesheet may show the chosen one.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void initStyleOption(QStyleOptionButton *option) const override;

private:
    QFontMetrics boldMetrics() const;
    int frameWidth() const;
};

} // namespace ostra
