// SPDX-License-Identifier: Apache-2.0
#include "utils/dpi.h"

#include "utils/screen_sources.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <memory>

namespace ostra::utils {

namespace {

constexpr std::int32_t cappedDpi = 192;
constexpr double baseDpi = 96.0;

Dpi *currentInstance = nullptr;
std::uint32_t lastReportedDpi = 0;

std::uint32_t screenDpi()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    return screens.isEmpty() ? 0 : wholeDpi(screens.first()->logicalDotsPerInchX());
}

} // namespace

Dpi *Dpi::instance()
{
    const QWidgetList topLevelWidgets = QApplication::topLevelWidgets();
    if (topLevelWidgets.isEmpty())
        return nullptr;
    if (currentInstance == nullptr) {
        auto created = std::unique_ptr<Dpi>(new Dpi(topLevelWidgets.first()));
        created->measure();
        currentInstance = created.release(); // the parent's from now on
    }
    return currentInstance;
}

void Dpi::destroyInstance() { delete currentInstance; }

Dpi::Dpi(QWidget *parent) : QWidget(parent)
{
    hide(); // explicitly, or it would be shown with its parent
}

Dpi::~Dpi()
{
    if (currentInstance == this)
        currentInstance = nullptr;
}

void Dpi::measure()
{
    lastReportedDpi = screenSources().primaryMonitorDpi().value_or(lastReportedDpi);
    dpiStep_ = dpiLadderStep(lastReportedDpi == 0 ? screenDpi() : lastReportedDpi);
    dpi_ = std::min(dpiStep_, cappedDpi);
}

double Dpi::scaleFactor() const { return dpi_ / baseDpi; }

double Dpi::scaledValue(double a, double b) const
{
    const double s = scaleFactor();
    return (s - 1.0) * b / (3.0 - s) + ((2.0 - s) * a + (s - 1.0));
}

} // namespace ostra::utils
