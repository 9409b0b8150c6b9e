// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/customeranswer.h"

#include "devicestate.h"
#include "text/conditions.h"
#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <iterator>

namespace {

// Whether a device that works and takes money does so at this moment.
bool isOpen(const PublishedDevice& device)
{
    return moneyOf(device.deviceId()) == Money::Card
        || device.state() == deviceStatesConst::DS_IDLING;
}

bool hasCondition(const PublishedDevice& device)
{
    return std::any_of(std::begin(Condition::table), std::end(Condition::table),
                       [&](const Condition& condition) { return condition.holds(device); });
}

// Whether its state is one in which a device works.
bool isStateSound(const PublishedDevice& device)
{
    State state = STATE_BUSY;
    return DeviceState::stateFromString(device.state(), state) && state != STATE_JAMMED
        && state != STATE_ERROR;
}

} // namespace

std::vector<DeviceFault> whyNotWorking(const PublishedDevice& device)
{
    std::vector<DeviceFault> faults;
    for (const Condition::Kind kind : Condition::publishedOrder) {
        const Condition& condition = Condition::table[kind];
        if (condition.holds(device))
            faults.push_back({condition.key, condition.told(device)});
    }
    if (faults.empty() && !isStateSound(device)) {
        State state = STATE_BUSY;
        const QString text = DeviceState::stateFromString(device.state(), state)
            ? Diagnosis::tr("The device does not work; its state: %1.")
            : Diagnosis::tr("It is not known whether the device works; its state: %1.");
        faults.push_back({"state", text.arg(AcceptorState::stateDescr(device.state()))});
    }
    return faults;
}

bool isWorking(const PublishedDevice& device)
{
    return !hasCondition(device) && isStateSound(device);
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
