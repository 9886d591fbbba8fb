// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "contract/entity_id.h"
#include "contract/test.h"

#include <QByteArray>
#include <QList>

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <utility>

/// Looking at boundary objects as a host without our headers would: as a pointer to a table of plain functions.
namespace boundary {

/// A destructor entry of a table.
using Destructor = void (*)(void *);

inline QByteArray describe(const std::string &text) { return '"' + QByteArray::fromStdString(text) + '"'; }
inline QByteArray describe(const char *text) { return describe(std::string(text)); }
template <class T>
QByteArray describe(T *pointer)
{
    return "0x" + QByteArray::number(std::bit_cast<quint64>(pointer), 16);
}
template <std::unsigned_integral T>
QByteArray describe(T number)
{
    return QByteArray::number(static_cast<qulonglong>(number));
}
template <std::signed_integral T>
QByteArray describe(T number)
{
    return QByteArray::number(static_cast<qlonglong>(number));
}
inline QByteArray describe(const ostra::EntityId &id)
{
    return describe(id.module) + '/' + describe(id.category) + '/' + describe(id.index) + '/' + QByteArray::number(id.key, 16);
}
inline QByteArray describe(const ostra::ParameterTable &table)
{
    QByteArray text;
    for (const auto &[key, value] : table)
        text += '{' + describe(key) + ' ' + describe(value) + '}';
    return text;
}

/// What was called last, with the arguments as they arrived. Lives outside the called object, so that it outlasts it.
class CallRecord {
public:
    template <class... Arguments>
    void note(const char *operation, const Arguments &...arguments)
    {
        QByteArray text;
        ((text += (text.isEmpty() ? "" : ", ") + describe(arguments)), ...);
        calls_.append(QByteArray(operation) + '(' + text + ')');
    }
    /// The calls noted since the last look, usually one.
    QByteArray take() { return std::exchange(calls_, {}).join("; "); }

private:
    QList<QByteArray> calls_;
};

/// Base of the probes: a boundary class whose destruction is noted as well.
template <class Boundary>
class Probe : public Boundary {
public:
    template <class... Arguments>
    explicit Probe(CallRecord &record, Arguments &&...arguments)
        : Boundary(std::forward<Arguments>(arguments)...), record_(record)
    {}
    ~Probe() override { record_.note("destructor"); }

protected:
    CallRecord &record() const { return record_; }

private:
    CallRecord &record_;
};

/// The first entries of the object's table, as the plain struct `Table`.
template <class Table>
Table tableOf(const void *object)
{
    const void *entries = nullptr;
    std::memcpy(&entries, object, sizeof entries);
    Table table;
    std::memcpy(&table, entries, sizeof table);
    return table;
}

/// An address that nobody follows; 48 significant bits, so that a truncated argument shows.
template <class T>
T *addressOf(std::uintptr_t number)
{
    return std::bit_cast<T *>(std::uintptr_t{0x7ABC00000000} + number * 16);
}

/// Slot of an operation, read from the pointer to it: 1 + the byte offset of its entry, and entry n + 1 holds slot n because
/// the destructor takes two entries (Itanium C++ ABI, 2.3 "Member Function Pointers" and 2.5 "Virtual Table Layout").
template <class Operation>
qsizetype slotOf(Operation operation)
{
    std::uintptr_t word = 0;
    std::memcpy(&word, &operation, sizeof word);
    return static_cast<qsizetype>((word - 1) / sizeof(void *)) - 1;
}

template <class... Operations>
QList<qsizetype> slotsOf(Operations... operations)
{
    return {slotOf(operations)...};
}

/// 1, 2, … `last`.
inline QList<qsizetype> slotsUpTo(qsizetype last)
{
    QList<qsizetype> numbers;
    for (qsizetype number = 1; number <= last; ++number)
        numbers.append(number);
    return numbers;
}

/// Destroys one object through entry 0, in storage that stays ours, and one through entry 1, which frees its memory (the
/// address sanitizer would report an object that was not freed). Returns what the two noted.
template <class ProbeClass, class... Arguments>
QByteArray destroyedThroughBothEntries(const Arguments &...arguments)
{
    struct DestructorTable {
        Destructor destroy;
        Destructor destroyAndFree;
    };
    CallRecord record;
    alignas(ProbeClass) std::byte storage[sizeof(ProbeClass)];
    void *placed = new (storage) ProbeClass(record, arguments...);
    tableOf<DestructorTable>(placed).destroy(placed);

    void *allocated = new ProbeClass(record, arguments...);
    tableOf<DestructorTable>(allocated).destroyAndFree(allocated);
    return record.take();
}

inline QByteArray twoDestructions() { return "destructor(); destructor()"; }

} // namespace boundary
