// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorstate.h"
#include "fuzzing.h"

#include <algorithm>

namespace {

bool isValidator(const AcceptorStateItem& device)
{
    return device.deviceId() > 0 && device.deviceId() < 100;
}

// Written from the rule, not from the library: the last validator decides.
bool mayAccept(const QList<AcceptorStateItem>& devices)
{
    bool anyEnabled = false;
    for (const AcceptorStateItem& device : devices)
        anyEnabled = anyEnabled || device.enabled();
    const auto last = std::find_if(devices.rbegin(), devices.rend(), isValidator);
    if (!anyEnabled || last == devices.rend())
        return anyEnabled;
    return last->enabled() && last->state() == QLatin1String("busy") && last->stackerPresent()
        && !last->stackerFull() && !last->errorCritical() && !last->halt();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    const QString text = textInput(data, size);
    const QDateTime published = QDateTime::fromSecsSinceEpoch(1);
    AcceptorState state;
    const AcceptorState copy =
        AcceptorState::loadFromClientState(quorbus::ClientState(text, published), state);

    if (hasDoubledKeys(text))
        return 0;
    // The same through a map, as Qt reads the text.
    AcceptorState fromMap;
    AcceptorState::loadFromStateMap(qtJson(text.toUtf8()).toMap(), fromMap);
    fromMap.setDt(published);
    const QList<AcceptorStateItem> devices = state.deviceStates();
    CHECK(devices.size() == fromMap.deviceStates().size());
    CHECK(state.systemStatusDescr({}) == fromMap.systemStatusDescr({}));
    for (int i = 0; i < devices.size(); ++i) {
        const AcceptorStateItem& a = devices.at(i);
        const AcceptorStateItem b = fromMap.deviceStates().at(i);
        CHECK(a.dispRegistry() == b.dispRegistry());
        CHECK(a.notesInserted() == b.notesInserted() && a.notesRejected() == b.notesRejected());
        CHECK(a.notesReturned() == b.notesReturned() && a.idString() == b.idString());
    }

    CHECK(state.isAcceptingAllowed() == mayAccept(devices));
    CHECK(state.allDisabled() == state.enabledDeviceIds().isEmpty());
    CHECK(state.disabledThreads().size() + state.enabledDeviceIds().size() == devices.size());
    CHECK(!state.paymentStateDescr().isEmpty() && !state.paymentStatusDescr().isEmpty());
    CHECK(copy.systemStatusDescr({}) == state.systemStatusDescr({}));
    return 0;
}
