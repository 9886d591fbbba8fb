// SPDX-License-Identifier: Apache-2.0
#include "utils/accessible_dialog_base.h"

#include "contract/style_manager.h"
#include "utils/guarded.h"
#include "utils/high_contrast_event_filter.h"
#include "utils/high_contrast_style.h"
#include "utils/icon_recolouring.h"

#include <QAccessibleWidget>
#include <QTimer>

#include <chrono>
#include <new>

namespace ostra::utils::accessibility {

using event_filters::HighContrastEventFilter;

namespace {

constexpr std::chrono::milliseconds themeSwitchTime{100};

QString productStyleSheet()
{
    const auto ask = [] {
        const style_manager::StyleManager *manager = style_manager::StyleManager::instance();
        return manager == nullptr ? QString() : QString::fromStdString(manager->Stylesheet());
    };
    return answerOr(ask, QString());
}

} // namespace

AccessibleDialogBase::AccessibleDialogBase(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags), highContrastFilter_(new (std::nothrow) HighContrastEventFilter(this))
{
    if (highContrastFilter_ != nullptr) {
        systemColors_ = highContrastFilter_->systemColors();
        highContrastFilter_->install();
        connect(highContrastFilter_.get(), &HighContrastEventFilter::ThemeChanged, this, &AccessibleDialogBase::OnThemeChanged);
    }
    setAttribute(Qt::WA_TranslucentBackground); // from here on the dialog's containers paint what is behind their text
    setStyleSheet(productStyleSheet());
    baseStyleSheet_ = styleSheet();
    if (isHighContrast())
        guarded([this] { applyHighContrastStyle(); }); // or the stylesheet stays as it was
}

AccessibleDialogBase::~AccessibleDialogBase()
{
    highContrastFilter_.reset(); // takes itself off the application
}

QAccessibleInterface *AccessibleDialogBase::accessibleInterface()
{
    // Its destructor is protected: only QAccessible deletes one, and it never hears of this one.
    static QAccessibleInterface *const shared = new QAccessibleWidget(this, QAccessible::Client, QString());
    return shared;
}

void AccessibleDialogBase::OnThemeChanged()
{
    guarded([this] { QTimer::singleShot(themeSwitchTime, this, &AccessibleDialogBase::applyStyleOfTheme); });
}

void AccessibleDialogBase::applyStyleOfTheme()
{
    guarded([this] {
        if (isHighContrast())
            applyHighContrastStyle();
        else
            setStyleSheet(baseStyleSheet_);
    });
}

void AccessibleDialogBase::applyHighContrastStyle()
{
    const auto recolour = [this](const QString &value, const QString &color) { return recolourIcon(this, value, color); };
    setStyleSheet(highContrastStyleSheet(baseStyleSheet_, systemColors_, recolour));
}

bool AccessibleDialogBase::isHighContrast() const
{
    return highContrastFilter_ != nullptr && highContrastFilter_->isHighContrast();
}

} // namespace ostra::utils::accessibility
