// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devandthreaditem.h"

QT_WARNING_PUSH
// The base has no virtual destructor on purpose; this class adds one.
QT_WARNING_DISABLE_GCC("-Wnon-virtual-dtor")

/// The note counters of one device.
class VELMOLIB_EXPORT StatItem : public DevAndThreadItem
{
public:
    static const QString NOTES_INSERTED; ///< "notes_inserted": unsigned 64-bit
    static const QString NOTES_REJECTED; ///< "notes_rejected": unsigned 64-bit
    static const QString NOTES_RETURNED; ///< "notes_returned": unsigned 64-bit

    QVariantMap toMap() const override;

    /// Reads device and thread, then the three counters in their full width.
    bool fromMap(const QVariantMap& map, QString* error = nullptr) override;

    virtual ~StatItem() = default;

    /// Sets the three counters in a map that someone else builds, such as a device's state map;
    /// no other key is touched.
    virtual void addToMap(QVariantMap& map);

    /// Whether both count for the same device and thread.
    bool eqDev(const StatItem& other) const;

    /// Whether all fields are equal, or some differ.
    bool operator==(const StatItem& other) const;
    bool operator!=(const StatItem& other) const { return !(*this == other); }

    /// How many notes or coins were inserted, rejected, returned.
    quint64 notesInserted = 0;
    quint64 notesRejected = 0;
    quint64 notesReturned = 0;
};

QT_WARNING_POP
