// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestateworker.h"

namespace {

// An empty text stays as it is when it is equal: the map shows whether it is null.
void update(QString& field, const QString& text)
{
    if (field != text)
        field = text;
}

} // namespace

DeviceStateWorker::DeviceStateWorker(QObject* parent)
    : QObject(parent)
{
}

void DeviceStateWorker::setEnabled(const bool& enabled)
{
    currentState.enabled = enabled;
}

void DeviceStateWorker::setState(const State& state)
{
    currentState.state = state;
}

void DeviceStateWorker::setStackerPresent(const bool& present)
{
    currentState.stackerPresent = present;
}

void DeviceStateWorker::setStackerFull(const bool& full)
{
    currentState.stackerFull = full;
}

void DeviceStateWorker::setCash(const unsigned int& cash)
{
    currentState.cash = cash;
}

void DeviceStateWorker::setErrorText(const QString& text)
{
    update(currentState.errorText, text);
}

void DeviceStateWorker::setErrCritical(const bool& critical)
{
    currentState.errCritical = critical;
}

void DeviceStateWorker::setHalt(const bool& halt)
{
    currentState.halt = halt;
}

void DeviceStateWorker::setStateText(const QString& text)
{
    update(currentState.stateText, text);
}

void DeviceStateWorker::setThreadId(const unsigned int& threadId)
{
    currentState.threadId = threadId;
}

void DeviceStateWorker::setDeviceId(const unsigned int& deviceId)
{
    currentState.deviceId = deviceId;
}

void DeviceStateWorker::setSessionSum(const int& sum)
{
    currentState.sessionSum = sum;
}

void DeviceStateWorker::setCurrentNote(const int& note)
{
    currentState.currentNote = note;
}

void DeviceStateWorker::setCurrentChannel(const short& channel)
{
    currentState.currentChannel = channel;
}

void DeviceStateWorker::setDispensedSum(const unsigned int& sum)
{
    currentState.dispensedSum = sum;
}

void DeviceStateWorker::setIdString(const QString& text)
{
    update(currentState.idString, text);
}

void DeviceStateWorker::setOnline(bool online)
{
    currentState.online = online;
}

void DeviceStateWorker::setDispenserRegistryList(const QList<DispenserRegistryItem>& rows)
{
    currentState.setDispenserRegistry(rows);
}

void DeviceStateWorker::saveState()
{
    savedState = currentState;
}

void DeviceStateWorker::startSession()
{
    currentState.sessionSum = 0;
    currentState.currentNote = 0;
    currentState.currentChannel = 0;
    currentState.dispensedSum = 0;
    statesList.clear();
}

void DeviceStateWorker::sendState()
{
    statesList.append(currentState);
    Q_EMIT deviceStateChanged(currentState);
}

bool DeviceStateWorker::checkState()
{
    const bool changed = savedState != currentState;
    if (changed)
        sendState();
    return changed;
}

DeviceState* DeviceStateWorker::getState()
{
    return &currentState;
}

StatesList* DeviceStateWorker::getStatesList()
{
    return &statesList;
}
