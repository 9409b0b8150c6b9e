#include "devicestateworker.h"

namespace {

template <typename T>
void update(T& field, const T& value)
{
    if (field != value)
        field = value;
}

} // namespace

DeviceStateWorker::DeviceStateWorker(QObject* parent)
    : QObject(parent)
{
}

void DeviceStateWorker::setEnabled(const bool& enabled)
{
    update(currentState.enabled, enabled);
}

void DeviceStateWorker::setState(const State& state)
{
    update(currentState.state, state);
}

void DeviceStateWorker::setStackerPresent(const bool& present)
{
    update(currentState.stackerPresent, present);
}

void DeviceStateWorker::setStackerFull(const bool& full)
{
    update(currentState.stackerFull, full);
}

void DeviceStateWorker::setCash(const unsigned int& cash)
{
    update(currentState.cash, cash);
}

void DeviceStateWorker::setErrorText(const QString& text)
{
    update(currentState.errorText, text);
}

void DeviceStateWorker::setErrCritical(const bool& critical)
{
    update(currentState.errCritical, critical);
}

void DeviceStateWorker::setHalt(const bool& halt)
{
    update(currentState.halt, halt);
}

void DeviceStateWorker::setStateText(const QString& text)
{
    update(currentState.stateText, text);
}

void DeviceStateWorker::setThreadId(const unsigned int& threadId)
{
    update(currentState.threadId, threadId);
}

void DeviceStateWorker::setDeviceId(const unsigned int& deviceId)
{
    update(currentState.deviceId, deviceId);
}

void DeviceStateWorker::setSessionSum(const int& sum)
{
    update(currentState.sessionSum, sum);
}

void DeviceStateWorker::setCurrentNote(const int& note)
{
    update(currentState.currentNote, note);
}

void DeviceStateWorker::setCurrentChannel(const short& channel)
{
    update(currentState.currentChannel, channel);
}

void DeviceStateWorker::setDispensedSum(const unsigned int& sum)
{
    update(currentState.dispensedSum, sum);
}

void DeviceStateWorker::setIdString(const QString& text)
{
    update(currentState.idString, text);
}

void DeviceStateWorker::setOnline(bool online)
{
    update(currentState.online, online);
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
