// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>
#include <QVariant>

QT_WARNING_PUSH
// There is no virtual destructor on purpose: the class's virtual table holds toMap() and fromMap()
// only. Never delete a derived record through a pointer to this class.
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor")
QT_WARNING_DISABLE_CLANG("-Wnon-virtual-dtor")

/// One device of the service and the service thread that drives it.
class VELMOLIB_EXPORT DevAndThreadItem
{
public:
    static const QString DEVICE_ID; ///< "device_id": int
    static const QString THREAD_ID; ///< "thread_id": int, sign-extended

    /// The map form: a value under each key constant of the class and its bases.
    virtual QVariantMap toMap() const;

    /// Reads the device, then the thread. @p error receives the bare text of the first missing key;
    /// it may be null.
    /// @return whether both keys were there
    virtual bool fromMap(const QVariantMap& map, QString* error = nullptr);

    /// Whether all fields are equal, or some differ.
    bool operator==(const DevAndThreadItem& other) const;
    bool operator!=(const DevAndThreadItem& other) const { return !(*this == other); }

    qint32 deviceId = 0; ///< identifier of the device
    qint16 threadId = -1; ///< takes the low 16 bits of what a map holds
};

QT_WARNING_POP
