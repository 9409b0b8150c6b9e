// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/sumwatch.h"

#include "text/devicename.h"

void SumWatch::take(const PublishedState& state, const std::vector<NoteWatch::Note>& notes,
                    bool isBusy)
{
    const qint64 cardSumBefore = m_cardSum;
    m_sum = state.sessionSum();
    m_cardSum = 0;
    for (const PublishedDevice& device : state.devices)
        m_cardSum += moneyOf(device.deviceId()) == Money::Card ? device.sessionSum : 0;
    m_recorded = state.money.recorded;

    m_whole += qMax(m_cardSum - cardSumBefore, qint64(0));
    for (const NoteWatch::Note& note : notes)
        m_whole += note.outcome == NoteWatch::Taken ? note.value : 0;
    if (m_isAway && m_before > m_sum) {
        m_isLostRecorded = m_isBeforeRecorded && (m_lost == 0 || m_isLostRecorded);
        m_lost += m_before - m_sum;
        m_whole = m_sum + m_lost;
    }
    m_isAway = false;
    // A piece may be in the sum before the device says that it is taken.
    if (m_sum >= m_whole && !isBusy)
        m_lost = 0;
}

void SumWatch::lose(bool isComplete)
{
    if (m_isAway)
        return;
    m_isAway = true;
    m_before = isComplete ? 0 : m_sum;
    m_isBeforeRecorded = isRecorded();
}

void SumWatch::settle()
{
    m_lost = 0;
}
