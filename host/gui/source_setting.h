// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace host {

/// Which capture source the program listens to. Kept in "host.ini" in the program's own state folder, beside the file of the
/// language, which is the module's as well.
class SourceSetting {
public:
    /// Reads it; the folder need not exist.
    explicit SourceSetting(QString folder);

    /// Name of the source as the listener lists it; empty: nothing is listened to.
    const QString &source() const noexcept { return source_; }
    const QString &folder() const noexcept { return folder_; }
    /// In force at once. False when it could not be kept for later starts.
    bool change(const QString &source);
    /// In force in this process alone.
    void useOnce(const QString &source) { source_ = source; }

private:
    QString folder_;
    QString source_;
};

} // namespace host
