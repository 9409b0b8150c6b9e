// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "noteitem.h"

#include <QList>

/// One row of the dispenser registry: what one channel of a dispensing device holds.
class VELMOLIB_EXPORT DispenserRegistryItem : public NoteItem
{
public:
    static const QString THREAD_ID; ///< "thread_id": int, 0 to 65535
    static const QString DEVICE_ID; ///< "device_id": int, 0 to 65535
    static const QString CHANNEL; ///< "channel": int, 0 to 65535
    static const QString REJECTED; ///< "rejected": int, 0 to 65535; optional when read

    DispenserRegistryItem() = default;

    /// The unsigned face value and count are stored bit by bit in the signed fields.
    DispenserRegistryItem(unsigned short thread, unsigned short device, unsigned short channelNo,
                          Acceptors::billTypes type, QString currencyCode, unsigned int faceValue,
                          unsigned int noteCount, unsigned short rejectedCount);

    QVariantMap toMap() const override;

    /// Reads the note's keys, then thread, device and channel; "rejected" may be missing and then
    /// keeps its value.
    bool fromMap(const QVariantMap& map, QString* error = nullptr) override;

    /// A row filled by fromMap(), whose result is not reported: what was not read keeps its
    /// default.
    static DispenserRegistryItem createFromMap(const QVariantMap& map);

    /// Whether both rows describe the same channel and the same kind of note; count and rejected
    /// notes may differ.
    bool like(const DispenserRegistryItem& other) const;

    /// Whether all fields are equal, or some differ.
    bool operator==(const DispenserRegistryItem& other) const;
    bool operator!=(const DispenserRegistryItem& other) const { return !(*this == other); }

    /// Service thread, device, channel of the device, notes that were rejected. Each takes the low
    /// 16 bits of what a map holds.
    quint16 threadId = 0;
    quint16 deviceId = 0;
    quint16 channel = 0;
    quint16 rejected = 0;
};

/// A copy of @p a that counts @p b's notes less. The rows need not be alike; the count may become
/// negative and wraps around at 32 bits.
VELMOLIB_EXPORT DispenserRegistryItem operator-(const DispenserRegistryItem& a,
                                                const DispenserRegistryItem& b);

/// The order of registry rows and of devices.
namespace DRListRoutines {

/// Orders the rows of one device: ascending face value; at one face value bill type 1 stands
/// before bill type 0, and any other rows are equal.
VELMOLIB_EXPORT bool less(const DispenserRegistryItem& a, const DispenserRegistryItem& b);

/// Orders devices, given as their sorted rows, by their largest face value, compared unsigned. An
/// empty device counts as face value 0; nothing stands before an empty device.
VELMOLIB_EXPORT bool devLess(const QList<DispenserRegistryItem>& a,
                             const QList<DispenserRegistryItem>& b);

/// Sorts one device's rows; equal ones keep their order.
VELMOLIB_EXPORT void sort(QList<DispenserRegistryItem>& rows);

/// Sorts every device's rows, then the devices; equal ones keep their order.
VELMOLIB_EXPORT void sortDevices(QList<QList<DispenserRegistryItem>>& devices);

} // namespace DRListRoutines
