#include "replay.h"

#include <algorithm>

Replay::Replay(FilterSource source, const ArrayFile& filters)
{
    m_chain.setEvents(m_worker.getStatesList());
    m_filters = source(filters, m_chain);
}

ReplayStep Replay::take(const SessionLine& line)
{
    if (line.startsSession())
        m_worker.startSession();
    DeviceState& state = *m_worker.getState();
    line.applyTo(state);

    ReplayStep step{};
    step.startsSession = line.startsSession();
    step.state = state.stateAsString();
    step.note = state.currentNote;
    step.sessionSum = state.sessionSum;
    step.sent = m_worker.checkState();
    if (step.sent)
        m_worker.saveState();
    step.hasEvent = !m_worker.getStatesList()->isEmpty();
    step.verdict = m_chain.validate();
    step.refusedBy = step.verdict == AbstractFilter::FILTER_ACCEPT ? nullptr : firstRefusing();

    const QVariantList devices{state.toMap()};
    AcceptorState::loadFromStateMap({{QStringLiteral("device_states"), devices}}, m_screen);
    step.paymentText = m_screen.paymentStateDescr();
    step.acceptingAllowed = m_screen.isAcceptingAllowed();
    return step;
}

// The chain does not say which filter refused, but filters keep nothing between verdicts: asked
// again, the same one refuses.
const AbstractFilter* Replay::firstRefusing() const
{
    const auto refusing = std::find_if(m_filters.begin(), m_filters.end(), [](AbstractFilter* f) {
        return f->validate() != AbstractFilter::FILTER_ACCEPT;
    });
    return refusing == m_filters.end() ? nullptr : *refusing;
}
