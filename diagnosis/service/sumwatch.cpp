// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/sumwatch.h"

#include "text/devicename.h"

void SumWatch::take(const PublishedState& state, const std::vector<NoteWatch::Note>& notes,
                    bool isBusy, bool wasComplete)
{
    QSet<std::pair<int, int>> known;
    QSet<std::pair<int, int>> paid;
    qint64 cardSum = 0;
    for (const PublishedDevice& device : state.devices) {
        const std::pair<int, int> key(device.deviceId(), device.threadId());
        known.insert(key);
        if (device.sessionSum != 0)
            paid.insert(key);
        if (moneyOf(device.deviceId()) == Money::Card)
            cardSum += device.sessionSum;
    }
    if (!known.contains(std::exchange(m_devices, paid)))
        lose(wasComplete); // a device took its part of the sum away

    m_sum = state.sessionSum();
    m_recorded = state.money.recorded;

    m_whole += qMax(cardSum - std::exchange(m_cardSum, cardSum), qint64(0));
    for (const NoteWatch::Note& note : notes)
        m_whole += note.outcome == NoteWatch::Taken ? note.value : 0;
    if (m_isAway && m_before > m_sum) {
        m_isLostRecorded = m_isBeforeRecorded && (m_lost == 0 || m_isLostRecorded);
        m_lost += m_before - m_sum;
        m_whole = m_sum + m_lost;
    }
    m_isAway = false;
    // A piece may be in the sum before the device says that it is taken.
    if (m_sum == m_whole && !isBusy)
        m_lost = 0;
}

void SumWatch::lose(bool isComplete)
{
    if (m_isAway)
        return;
    m_isAway = true;
    m_isBeforeRecorded = isRecorded();
    m_before = isComplete && (m_isBeforeRecorded || !m_recorded) ? 0 : m_sum;
}

void SumWatch::settle()
{
    m_lost = 0;
}
