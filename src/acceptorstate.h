// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <quorbus/clientstate.h>

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// One device in the published service state, as a client of the service sees it.
class VELMOLIB_EXPORT AcceptorStateItem
{
public:
    /// Zero, false and empty everywhere.
    AcceptorStateItem() = default;

    /// @param map the device's map: that of DeviceState with the note counters of StatItem. What
    /// it lacks reads as device -1, thread -1, stacker present, otherwise zero, false and empty.
    AcceptorStateItem(QVariantMap map);

    /// The identifier of the device, by which AcceptorState tells what kind it is of.
    int deviceId() const;
    void setDeviceId(int id);

    /// The service thread that drives the device.
    int threadId() const;
    void setThreadId(int id);

    /// Whether the device is enabled for work.
    bool enabled() const;
    void setEnabled(bool enabled);

    /// The state's name, one of deviceStatesConst; any text is kept.
    QString state() const;
    void setState(const QString& state);

    /// Free text that describes the state.
    QString stateText() const;
    void setStateText(const QString& text);

    /// Whether the stacker is in its place.
    bool stackerPresent() const;
    void setStackerPresent(bool present);

    /// Whether the stacker is full.
    bool stackerFull() const;
    void setStackerFull(bool full);

    /// Whether a critical error is active.
    bool errorCritical() const;
    void setErrorCritical(bool critical);

    /// What the error is; the service report has it for a critical error only.
    QString errorText() const;
    void setErrorText(const QString& text);

    /// Whether the device is halted.
    bool halt() const;
    void setHalt(bool halt);

    /// Identification text of the device.
    QString idString() const;
    void setIdString(const QString& text);

    /// One of the note counters of StatItem; of what a map holds, the low 32 bits.
    int notesInserted() const;
    void setNotesInserted(const int& count);
    int notesRejected() const;
    void setNotesRejected(const int& count);
    int notesReturned() const;
    void setNotesReturned(const int& count);

    /// The dispenser registry: row maps without "thread_id", "device_id" and "channel" under keys
    /// "<bill type>_<channel>_<denomination>_<currency>", for example "1_2_100_643".
    QVariantMap dispRegistry() const;
    void setDispRegistry(const QVariantMap& registry);

private:
    int m_deviceId = 0;
    int m_threadId = 0;
    bool m_enabled = false;
    QString m_state;
    QString m_stateText;
    bool m_stackerPresent = false;
    bool m_stackerFull = false;
    bool m_errorCritical = false;
    QString m_errorText;
    bool m_halt = false;
    QString m_idString;
    int m_notesInserted = 0;
    int m_notesRejected = 0;
    int m_notesReturned = 0;
    QVariantMap m_dispRegistry;
};

/// The published state of the whole acceptor service, and the answers that payment and service
/// screens need. Devices 1 to 99 are banknote validators, 100 to 199 coin devices, 200 and 201
/// card terminals. Texts for people pass through QObject::tr(). A plain value: each thread uses
/// its own copies.
class VELMOLIB_EXPORT AcceptorState
{
public:
    static const QString ACCEPTOR_STATE_BUSY; ///< "busy"
    static const QString DEVICE_STATES; ///< "device_states": the devices of a service state map

    /// When the service published the state; invalid when not known.
    QDateTime dt() const;
    void setDt(const QDateTime& dt);

    /// The devices in published order.
    QList<AcceptorStateItem> deviceStates() const;
    void setDeviceStates(const QList<AcceptorStateItem>& states);

    /// Whether there are devices and all are enabled.
    bool allEnabled() const;

    /// Whether no device is enabled; true without devices.
    bool allDisabled() const;

    /// Whether some device, enabled or not, misses its stacker.
    bool stackerUnpresent() const;

    /// The service threads of the devices that are not enabled, repeats kept.
    QList<int> disabledThreads() const;

    /// The enabled devices, repeats kept.
    QList<int> enabledDeviceIds() const;

    /// Whether money may be accepted now: some device is enabled, and the last banknote validator
    /// of the list, if there is one, is enabled, "busy", free of critical errors, not halted, and
    /// has a stacker that is present and not full.
    bool isAcceptingAllowed() const;

    /// What may be paid with: "Input money", "Input coin", "Input money or coin", "Money accepting
    /// is disabled", or "Error status unknown" when only other devices are enabled.
    QString paymentStatusDescr() const;

    /// What to tell the customer: "Wait..." without devices or while an enabled device other than
    /// a card terminal is not idling, else paymentStatusDescr().
    QString paymentStateDescr() const;

    /// The service report: a block of lines for each device, then the time stamp when it is valid.
    /// @param names display names by device identifier; a device without one is "Unknown"
    QString systemStatusDescr(QMap<int, QString> names) const;

    /// What a state's name means, as the service report has it after "Status: ". A name that has
    /// no phrase, the empty one too, is named as unknown: "unknown state:(error)".
    /// @param name one of deviceStatesConst, compared with case
    static QString stateDescr(const QString& name);

    /// The service state map that a service publishes, {"device_states": [...]}.
    /// @param devices for each device its DeviceState::toMap(), with the note counters that
    /// StatItem::addToMap() sets, in the order in which clients shall see them
    static QVariantMap stateMap(const QVariantList& devices);

    /// Replaces the devices of @p state by those of a service state map {"device_states": [...]};
    /// without that key there are none. The time stamp stays.
    static void loadFromStateMap(QVariantMap stateMap, AcceptorState& state);

    /// Loads @p state from the bus and returns a copy of it. A text that is no JSON object gives
    /// no devices; the time stamp is set in any case.
    static AcceptorState loadFromClientState(quorbus::ClientState clientState,
                                             AcceptorState& state);

private:
    QDateTime m_dt;
    QList<AcceptorStateItem> m_deviceStates;
};
