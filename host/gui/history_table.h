// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/core/run_record.h"

#include <QTableWidget>

namespace host {

/// The runs since the start of the program, the newest first.
class HistoryTable : public QTableWidget {
    Q_OBJECT

public:
    explicit HistoryTable(QWidget *parent = nullptr);

    void add(const RunRecord &record);
    /// \param language code, by whose rules times are written
    void retranslate(const QString &language);

private:
    void fillRow(int row, const RunRecord &record);

    QList<RunRecord> records_; // as shown
    QString language_;
};

} // namespace host
