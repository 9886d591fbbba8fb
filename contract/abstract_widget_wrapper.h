// SPDX-License-Identifier: Apache-2.0
#pragma once

class QObject;
class QWidget;

namespace ostra {

/// A dialog that the module hands to the host instead of a standard prompt.
class AbstractWidgetWrapper {
public:
    /// Slot 0. The module destroys its wrappers itself, after the request is done.
    virtual ~AbstractWidgetWrapper() = default;
    /// Slot 1. Builds the dialog, runs it modally and returns its result. GUI thread only, once per wrapper. `parent` is the
    /// parent widget, `argument` the event filter to install on the dialog; either may be null, both stay the host's.
    virtual int exec(QWidget *parent, QObject *argument) = 0;

protected:
    AbstractWidgetWrapper() = default;
    AbstractWidgetWrapper(const AbstractWidgetWrapper &) = delete;
    AbstractWidgetWrapper &operator=(const AbstractWidgetWrapper &) = delete;
};

} // namespace ostra
