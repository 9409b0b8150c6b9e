// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestatesconst.h"
#include "dispenserregistryitem.h"
#include "velmolib_global.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

/// The operational states of a device; each has a name in deviceStatesConst.
enum State : qint32 {
    STATE_IDLING = 0,
    STATE_ACCEPTING = 1,
    STATE_ACCEPTED = 2,
    STATE_REJECTED = 3,
    STATE_STACKING = 4,
    STATE_STACKED = 5,
    STATE_RETURNING = 6,
    STATE_RETURNED = 7,
    STATE_JAMMED = 8,
    STATE_BUSY = 9,
    STATE_ERROR = 10,
    STATE_UPDATING = 11,
    STATE_DISPENSING = 12,
    STATE_DISPENSED = 13,
    STATE_FLOATING = 14,
    STATE_FLOATED = 15,
    STATE_EMPTYING = 16,
    STATE_EMPTIED = 17
};

/// The state of one cash device as the service publishes it: a plain value without locks, owned by
/// one thread at a time. It is a registered meta-type and so travels through queued connections.
///
/// Sums and notes are in the unit that the service uses.
class VELMOLIB_EXPORT DeviceState
{
public:
    DeviceState() = default; ///< busy, with a stacker that is present; otherwise zero and empty
    DeviceState(const DeviceState& other) = default; ///< copies every field
    virtual ~DeviceState() = default;

    /// Copies every field, the registry rows included, unless the two are equal already.
    DeviceState& operator=(const DeviceState& other);

    /// Clears the device as a whole: cash, session sum, identification, connection, and what
    /// resetOper() clears. Thread, device and registry rows stay.
    void reset();

    /// Clears the operational part: enabled, state (busy), stacker (present, not full), critical
    /// error, error and state texts, halt, current note and channel, dispensed sum.
    void resetOper();

    /// The state's name; a null string for a number that is no state.
    QString stateAsString() const;

    /// @return false, with @p state as it was, when no state has that name (case counts)
    static bool stateFromString(const QString& name, State& state);

    /// The map form: seventeen entries, and the registry rows when there are any. A state without
    /// a name gives a map that does not read back.
    QVariantMap toMap() const;

    /// Reads the seventeen scalar entries in the order of deviceStateDescConst; the registry rows
    /// stay as they are. A missing key or an unknown state name ends the reading: the fields
    /// before it are then changed, the others are not.
    /// @return whether everything was read
    bool fromMap(const QVariantMap& map);

    /// The map form as compact JSON text, keys in ascending order.
    QString serialize() const;

    /// Reads what serialize() writes, the registry rows excepted.
    /// @return false for a text that is not JSON, with nothing changed, or as fromMap() does
    bool parse(const QString& text);

    /// Replaces the registry rows.
    void setDispenserRegistry(const QList<DispenserRegistryItem>& rows);

    /// Whether all fields are equal, or some differ.
    bool operator==(const DeviceState& other) const;
    bool operator!=(const DeviceState& other) const { return !(*this == other); }

    bool enabled = false; ///< enabled for work
    State state = STATE_BUSY; ///< any number is kept as it is
    bool stackerPresent = true; ///< the stacker is in its place
    bool stackerFull = false; ///< the stacker is full
    quint32 cash = 0; ///< amount reported for the device; not interpreted here
    bool errCritical = false; ///< a critical error is active
    bool halt = false; ///< the device is halted
    QString errorText; ///< free text that describes the error
    QString stateText; ///< free text that describes the state
    quint32 threadId = 0; ///< service thread that drives the device
    quint32 deviceId = 0; ///< identifier of the device
    qint32 sessionSum = 0; ///< taken in the current session
    qint32 currentNote = 0; ///< face value of the note or coin being handled
    qint16 currentChannel = 0; ///< dispenser channel being handled
    quint32 dispensedSum = 0; ///< paid out in the current session
    QString idString; ///< identification text of the device
    bool online = false; ///< connected and answering
    QList<DispenserRegistryItem> dispenserRegistry; ///< the rows of the device's channels
};

Q_DECLARE_METATYPE(DeviceState)

/// The states that a device sent in the current session, oldest first.
using StatesList = QList<DeviceState>;
