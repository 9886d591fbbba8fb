// SPDX-License-Identifier: Apache-2.0
#include "host/gui/device_table.h"

#include "contract/property_keys.h"
#include "host/gui/key_text.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTextDocument>

#include <array>

namespace host {

namespace {

// Behind the name, which is the device's identity as well.
constexpr std::array<const char *, 4> columns{ostra::properties::numberOfChannels, ostra::properties::sampleRate,
                                              ostra::properties::driverName, ostra::properties::driverVersion};

// A tool tip takes a text with tags for rich text, and one with escapes only for plain text.
QString literally(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()) : text;
}

} // namespace

DeviceTable::DeviceTable(QWidget *parent) : QTableWidget(0, 2 + static_cast<int>(columns.size()), parent)
{
    setObjectName(QStringLiteral("host_devices"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab leaves the table, the arrows walk in it
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setHighlightSections(false);
    constexpr int readableCharacters = 14; // of a name, where the other columns take the room
    horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * readableCharacters);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void DeviceTable::setDevices(const QList<Device> &devices)
{
    const int before = chosen();
    if (before >= 0)
        wanted_ = devices_[before].name;
    const QSignalBlocker quiet(this); // whoever shows the list looks at what is chosen once it is there
    devices_ = devices;
    setRowCount(static_cast<int>(devices.size()));
    for (int row = 0; row < rowCount(); ++row)
        fillRow(row, devices[row]);
    clearSelection();
    setCurrentCell(-1, -1);
    choose(wanted_.isEmpty() ? 0 : rowOf(wanted_, before));
}

void DeviceTable::fillRow(int row, const Device &device)
{
    const auto put = [this, row](int column, const QString &text) {
        auto *cell = new QTableWidgetItem(text);
        cell->setToolTip(literally(text));
        setItem(row, column, cell);
    };
    put(0, device.name);
    for (std::size_t index = 0; index < columns.size(); ++index)
        put(static_cast<int>(index) + 1, device.property(columns[index]).value_or(hostText("VALUE_NOT_KNOWN")));
    put(columnCount() - 1, stateWords(device.name));
}

QString DeviceTable::stateWords(const QString &device) const
{
    QStringList words;
    if (const auto state = state_.output(device)) {
        words.append(hostText("STATE_VOLUME").arg(state->percent));
        if (state->isMuted)
            words.append(hostText("STATE_MUTED"));
        if (state->isDefault)
            words.append(hostText("STATE_DEFAULT"));
    }
    if (state_.virtualDevices.contains(device))
        words.append(hostText("STATE_VIRTUAL"));
    return words.isEmpty() ? hostText("VALUE_NOT_KNOWN") : words.join(QStringLiteral(", "));
}

void DeviceTable::setState(const SoundState &state)
{
    state_ = state;
    for (int row = 0; row < rowCount(); ++row)
        item(row, columnCount() - 1)->setText(stateWords(devices_[row].name));
}

// Two devices may have one name: the one at the old position is the likelier.
int DeviceTable::rowOf(const QString &name, int preferred) const
{
    if (devices_.value(preferred).name == name && preferred < devices_.size())
        return preferred;
    for (int row = 0; row < rowCount(); ++row) {
        if (devices_[row].name == name)
            return row;
    }
    return -1;
}

int DeviceTable::chosen() const
{
    const int row = currentRow();
    return row >= 0 && selectionModel()->isRowSelected(row) ? row : -1;
}

bool DeviceTable::choose(qsizetype position)
{
    if (position < 0 || position >= rowCount())
        return false;
    setCurrentCell(static_cast<int>(position), 0);
    return true;
}

void DeviceTable::retranslate()
{
    QStringList titles{hostText("DEVICE")};
    for (const char *column : columns)
        titles.append(shownText(QLatin1String(column)));
    titles.append(hostText("DEVICE_STATE"));
    setHorizontalHeaderLabels(titles);
    setAccessibleName(hostText("DEVICES"));
    for (int row = 0; row < rowCount(); ++row)
        fillRow(row, devices_[row]);
}

} // namespace host
