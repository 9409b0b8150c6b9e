// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/replay.h"

#include "devicestatefields_p.h"

#include <algorithm>
#include <type_traits>

namespace {

template <typename... Unkept>
void publish(const Unkept&...)
{
}

template <auto Member, auto Getter, auto Setter>
void publish(DeviceStateField<Member, Getter, Setter> /*field*/, const DeviceState& from,
             AcceptorStateItem& to)
{
    if constexpr (std::is_same_v<std::decay_t<decltype(from.*Member)>, State>)
        (to.*Setter)(from.stateAsString());
    else
        (to.*Setter)(static_cast<decltype((to.*Getter)())>(from.*Member));
}

AcceptorStateItem published(const DeviceState& state)
{
    AcceptorStateItem item;
    withDeviceStateFields([&](auto... field) { (publish(field, state, item), ...); });
    return item;
}

} // namespace

std::vector<ReplayStep> Replay::take(const SessionLine& line, qint64 lineNumber)
{
    std::vector<ReplayStep> steps;
    for (const LogStep& step : m_player.take(line, lineNumber)) {
        const LogDevice& device = *step.device;
        publish(device);
        ReplayStep& taken = steps.emplace_back();
        taken.device = &device;
        taken.startsSession = step.startsSession;
        taken.sent = step.sent;
        if (device.state().currentNote <= 0)
            continue;
        const QVector<const FilterMemory*> refusing = device.refusing();
        taken.verdict = refusing.isEmpty() ? ReplayStep::Accepted : ReplayStep::Refused;
        taken.refusedBy = refusing.isEmpty() ? nullptr : &refusing.constFirst()->filter();
    }
    for (ReplayStep& step : steps) {
        step.paymentText = m_screen.paymentStateDescr();
        step.acceptingAllowed = m_screen.isAcceptingAllowed();
    }
    return steps;
}

void Replay::publish(const LogDevice& device)
{
    QList<AcceptorStateItem> states = m_screen.deviceStates();
    const auto known = std::find(m_published.begin(), m_published.end(), &device);
    const auto index = static_cast<int>(known - m_published.begin());
    const AcceptorStateItem state = published(device.state());
    if (known == m_published.end()) {
        m_published.push_back(&device);
        states.append(state);
    } else {
        states[index] = state;
    }
    m_screen.setDeviceStates(states);
}
