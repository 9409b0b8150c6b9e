// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "velmolib_global.h"

#include <QObject>

/// Maintains the state of one device for the device's handler: the handler sets fields as the
/// device reports them, calls checkState() and, when that sent the state, saveState().
///
/// There are no locks: the worker belongs to its handler's thread, and deviceStateChanged() is
/// emitted on the calling thread. Receivers in other threads connect to it as usual.
class VELMOLIB_EXPORT DeviceStateWorker : public QObject
{
    Q_OBJECT

public:
    /// Current and saved state are those of a new DeviceState, and none was sent.
    explicit DeviceStateWorker(QObject* parent = nullptr);

    /// Each sets one field of the current state and sends nothing.
    void setEnabled(const bool& enabled);
    void setState(const State& state);
    void setStackerPresent(const bool& present);
    void setStackerFull(const bool& full);
    void setCash(const unsigned int& cash);
    void setErrorText(const QString& text);
    void setErrCritical(const bool& critical);
    void setHalt(const bool& halt);
    void setStateText(const QString& text);
    void setThreadId(const unsigned int& threadId);
    void setDeviceId(const unsigned int& deviceId);
    void setSessionSum(const int& sum);
    void setCurrentNote(const int& note);
    void setCurrentChannel(const short& channel);
    void setDispensedSum(const unsigned int& sum);
    void setIdString(const QString& text);
    void setOnline(bool online);
    void setDispenserRegistryList(const QList<DispenserRegistryItem>& rows);

    /// Takes the current state as the reference of later checkState() calls.
    void saveState();

    /// Begins a payment session: session sum, current note, current channel and dispensed sum
    /// become 0 and the list of sent states becomes empty. The saved state stays.
    void startSession();

    /// Appends the current state to the list of sent states and announces it.
    void sendState();

    /// Sends the current state when it differs from the saved one. The saved state stays, so that
    /// until saveState() every further call sends again.
    /// @return whether the state was sent
    bool checkState();

    /// The current state itself, for reading and writing. The worker owns it.
    DeviceState* getState();

    /// The states sent since startSession(), oldest first: the event source of note filters. The
    /// worker owns it; startSession() invalidates its elements.
    StatesList* getStatesList();

Q_SIGNALS:
    /// The state was sent. @p State is the current state itself: who keeps it keeps a copy.
    void deviceStateChanged(const DeviceState& State);

private:
    StatesList statesList;
    DeviceState currentState;
    DeviceState savedState;
};
