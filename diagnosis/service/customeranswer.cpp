// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/customeranswer.h"

#include "devicestate.h"
#include "text/devicename.h"
#include "text/diagnosis.h"

namespace {

// Whether a device that works and takes money does so at this moment.
bool isOpen(const PublishedDevice& device)
{
    return moneyOf(device.deviceId()) == Money::Card
        || device.state() == deviceStatesConst::DS_IDLING;
}

} // namespace

QStringList whyNotWorking(const PublishedDevice& device)
{
    QStringList reasons = deviceFaults(device);
    const QString name = device.state();
    const bool isStuck =
        name == deviceStatesConst::DS_JAMMED || name == deviceStatesConst::DS_ERROR;
    State state = STATE_BUSY;
    const bool isKnown = DeviceState::stateFromString(name, state);
    if (reasons.isEmpty() && (isStuck || !isKnown)) {
        const QString reason = isKnown
            ? Diagnosis::tr("The device does not work; its state: %1.")
            : Diagnosis::tr("It is not known whether the device works; its state: %1.");
        reasons += reason.arg(AcceptorState::stateDescr(name));
    }
    return reasons;
}

bool isWorking(const PublishedDevice& device)
{
    return whyNotWorking(device).isEmpty();
}

bool takesMoney(const PublishedDevice& device)
{
    return moneyOf(device.deviceId()) != Money::None && isWorking(device) && isOpen(device);
}

CustomerAnswer::CustomerAnswer(const PublishedState& state)
{
    QList<AcceptorStateItem> cash;
    bool hasTerminal = false;
    bool isBusy = false;
    for (const PublishedDevice& device : state.devices) {
        const Money money = moneyOf(device.deviceId());
        if (money == Money::None || !isWorking(device))
            continue;
        if (money == Money::Card)
            hasTerminal = true;
        else
            cash += device;
        isBusy = isBusy || !isOpen(device);
        note = note || money == Money::Note;
        coin = coin || money == Money::Coin;
    }
    inService = hasTerminal || !cash.isEmpty();
    note = note && !isBusy;
    coin = coin && !isBusy;
    card = hasTerminal && !isBusy;
    AcceptorState working;
    working.setDeviceStates(cash);
    if (!cash.isEmpty())
        text = working.paymentStateDescr();
    else
        text = hasTerminal ? Diagnosis::tr("Pay by card") : outOfServiceText();
}

QString outOfServiceText()
{
    return Diagnosis::tr("Out of service");
}
