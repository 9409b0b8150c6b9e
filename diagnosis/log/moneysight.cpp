// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "dispenserregistrymodel.h"
#include "log/moneytrail.h"

// What a trail sees on a line.

namespace {

const quint32 sumReported = DeviceReport::bit(deviceStateDescConst::SESSION_SUM);
const quint32 paidReported = DeviceReport::bit(deviceStateDescConst::DISPENSED_SUM);
const quint32 cassetteReported = DeviceReport::bit(deviceStateDescConst::STACKER_PRESENT);
const quint32 stateReported = DeviceReport::bit(deviceStateDescConst::STATE);
const quint32 registryReported = DeviceReport::bit(DispenserRegistryModel::DISPENSER_REGISTRY);

} // namespace

void MoneyTrail::see(const LogStep& step, const SessionLine& line, qint64 lineNumber)
{
    m_line = lineNumber;
    m_time = line.time();
    m_isNews = step.sent;
    m_newCounter = step.notesInserted;
    const State state = m_device.state().state;
    const bool mayBegin = state != m_state && (state == STATE_ACCEPTING || state == STATE_REJECTED);
    m_isNoteMissing = m_counter.missesNotes(m_newCounter, mayBegin);
    if (step.startsSession)
        m_sum = m_paid = 0;
    else if (m_isFirst && !m_device.sessionStartSeen() && (step.reported & stateReported) == 0)
        m_act.kind = MoneyAct::Unseen;
    if ((step.reported & cassetteReported) != 0) {
        const bool isIn = m_device.state().stackerPresent;
        if (!isIn && m_isCassetteIn)
            ++m_collections;
        m_watcher.takeCassette(*this, isIn);
        m_isCassetteIn = isIn;
    }
    m_watcher.takeReport(*this, step);
    seeSums(step);
    m_changes.clear();
    if ((step.reported & registryReported) != 0)
        seeRegistry();
    for (const Contradiction& found : m_withheld.take(step.reported))
        m_watcher.takeContradiction(*this, found);
}

void MoneyTrail::seeSums(const LogStep& step)
{
    const DeviceState& state = m_device.state();
    m_newCredit = m_newPaid = 0;
    if ((step.reported & sumReported) != 0) {
        if (!m_sum)
            m_act.isCreditKnown = false;
        const qint64 before = m_sum.value_or(state.sessionSum);
        m_newCredit = qMax<qint64>(0, state.sessionSum - before);
        if (state.sessionSum < before) {
            m_act.fallen += qMin(m_act.credit, before - state.sessionSum);
            tell(Contradiction::ofFall(before, state.sessionSum, m_collections), here(),
                 {m_sumLine, m_line});
        }
        m_sum = state.sessionSum;
        m_sumLine = m_line;
    } else if (step.startsSession) {
        m_sumLine = m_line;
    }
    if ((step.reported & paidReported) != 0) {
        const qint64 before = m_paid.value_or(state.dispensedSum);
        if (!m_paid || state.dispensedSum < before)
            m_act.isPaidKnown = false;
        m_newPaid = qMax<qint64>(0, qint64(state.dispensedSum) - before);
        m_paid = state.dispensedSum;
    }
}

void MoneyTrail::seeRegistry()
{
    const DeviceChannels::News news =
        m_channels.take(m_device.state().dispenserRegistry, m_collections);
    for (const size_t channel : news.added)
        m_watcher.takeChannel(*this, channel);
    if (!news.areLinesMissing)
        m_changes = news.changes;
    for (const ChannelChange& change : news.changes) {
        if (news.areLinesMissing)
            m_watcher.takeChange(*this, MoneyAct::Unseen, change);
    }
    if (!news.isRegistryNew && !news.areLinesMissing)
        return;
    m_act.isPaidKnown = false;
    m_act.isRegistryNew = m_isRegistryNew = !m_channels.all().empty();
}

void MoneyTrail::seeCounter()
{
    if (!m_newCounter)
        return;
    const auto jump = m_counter.take(*m_newCounter, m_isNews, m_line, m_collections);
    m_missingNotes += jump ? jump->rise - jump->notes : 0;
    for (; m_missingNotes > 0 && !m_loneCredits.empty(); --m_missingNotes)
        m_loneCredits.pop_back(); // it is that one's
    tellLoneCredits();
    if (!jump)
        return;
    m_isNoteMissing = true;
    Contradiction found = Contradiction::ofCounter(jump->rise, jump->notes);
    found.collections = jump->collections;
    tell(found, here(), {jump->sinceLine, m_line});
}
