// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaMethod>
#include <QStringList>

#include <cstdint>
#include <cstring>

// The operations that a class adds to its base, as its meta-object tells them.
inline QStringList operationsOf(const QMetaObject &type)
{
    QStringList operations;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        const QString kind = method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal ") : QStringLiteral("slot ");
        operations << kind + QString::fromLatin1(method.methodSignature());
    }
    return operations;
}

// Entry of a virtual operation, read from the pointer to it: 1 + its byte offset in the table (Itanium C++ ABI, 2.3).
template <typename Operation>
std::size_t entryOf(Operation operation)
{
    std::uintptr_t word = 0;
    std::memcpy(&word, &operation, sizeof word);
    return (word - 1) / sizeof(void *);
}
