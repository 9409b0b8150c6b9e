// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/customeranswer.h"

#include "acceptors.h"
#include "devicestate.h"
#include "text/devicename.h"
#include "text/diagnosis.h"

namespace {

// Whether a device that works and takes money does so at this moment.
bool isOpen(const AcceptorStateItem& device)
{
    return moneyOf(device.deviceId()) == Money::Card
        || device.state() == deviceStatesConst::DS_IDLING;
}

} // namespace

Money moneyOf(int model)
{
    const int kind = modelKind(model);
    if (kind == Acceptors::NoteDispenser || kind == Acceptors::OtherDispenser)
        return Money::None;
    if (model >= 1 && model <= 99)
        return Money::Note;
    if (model >= 100 && model <= 199)
        return Money::Coin;
    return kind == Acceptors::CardReader ? Money::Card : Money::None;
}

QStringList whyNotWorking(const AcceptorStateItem& device, bool isOffline)
{
    QStringList reasons = deviceFaults(device, isOffline);
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

bool isWorking(const AcceptorStateItem& device, bool isOffline)
{
    return whyNotWorking(device, isOffline).isEmpty();
}

bool takesMoney(const AcceptorStateItem& device, bool isOffline)
{
    return moneyOf(device.deviceId()) != Money::None && isWorking(device, isOffline)
        && isOpen(device);
}

CustomerAnswer::CustomerAnswer(const PublishedState& state)
{
    QList<AcceptorStateItem> cash;
    bool hasTerminal = false;
    bool isBusy = false;
    auto details = state.details.begin();
    const QList<AcceptorStateItem> devices = state.service.deviceStates();
    for (const AcceptorStateItem& device : devices) {
        const bool isOffline = (details++)->isOffline;
        const Money money = moneyOf(device.deviceId());
        if (money == Money::None || !isWorking(device, isOffline))
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
