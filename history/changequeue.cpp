// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "changequeue.h"

#include "historytime.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr std::size_t mostWaiting = 100000;
constexpr int mostTexts = 10000;
constexpr std::chrono::seconds countsEvery{60};

// Of what the database is given.
constexpr int longestText = 1000;
constexpr int longestWord = 64;

bool isSameState(const KioskRecord& before, const KioskRecord& now)
{
    const auto isSameFault = [](const KioskFault& one, const KioskFault& other) {
        return one.device == other.device && one.thread == other.thread
            && one.reason == other.reason;
    };
    const auto isSameDevice = [](const KioskRecord::Device& one, const KioskRecord::Device& other) {
        return one.device == other.device && one.thread == other.thread
            && one.isStackerPresent == other.isStackerPresent
            && one.isStackerFull == other.isStackerFull;
    };
    return before.condition == now.condition
        && std::equal(before.faults.begin(), before.faults.end(), now.faults.begin(),
                      now.faults.end(), isSameFault)
        && std::equal(before.devices.begin(), before.devices.end(), now.devices.begin(),
                      now.devices.end(), isSameDevice);
}

// Of records of the same state.
bool isSameCount(const KioskRecord& before, const KioskRecord& now)
{
    const auto isSameLevel = [](const KioskRecord::Level& one, const KioskRecord::Level& other) {
        return one.count == other.count && one.channel == other.channel
            && one.denomination == other.denomination && one.billType == other.billType
            && one.currency == other.currency;
    };
    return std::equal(before.devices.begin(), before.devices.end(), now.devices.begin(),
                      [&](const KioskRecord::Device& one, const KioskRecord::Device& other) {
                          return one.inserted == other.inserted && one.rejected == other.rejected
                              && one.returned == other.returned
                              && std::equal(one.levels.begin(), one.levels.end(),
                                            other.levels.begin(), other.levels.end(), isSameLevel);
                      });
}

} // namespace

void ChangeQueue::record(KioskRecord record)
{
    const std::lock_guard lock(m_mutex);
    auto known = m_kiosks.find(record.kiosk);
    if (known == m_kiosks.end())
        known = m_kiosks.insert(record.kiosk, {});
    Kiosk& kiosk = *known;
    const KioskRecord* const before = kiosk.latest.get();
    const bool isSame = before && isSameState(*before, record);
    if (isSame && before->time / HistoryTime::day == record.time / HistoryTime::day
        && isSameCount(*before, record))
        return;
    // What was counted belongs to its hour.
    if (kiosk.isCounting
        && (before->time / HistoryTime::hour != record.time / HistoryTime::hour
            || record.devices.empty())) {
        push({KioskChange::Counts, record.kiosk, before->time, before->message, kiosk.latest});
        kiosk.isCounting = false;
    }
    record.kiosk = known.key();
    for (KioskFault& fault : record.faults) {
        fault.reason = shared(fault.reason, longestWord);
        fault.text = shared(fault.text, longestText);
    }
    for (KioskRecord::Device& device : record.devices) {
        for (KioskRecord::Level& level : device.levels)
            level.currency = shared(level.currency, longestWord);
    }
    kiosk.latest = std::make_shared<const KioskRecord>(std::move(record));
    if (!isSame) {
        push({KioskChange::State, kiosk.latest->kiosk, kiosk.latest->time, kiosk.latest->message,
              kiosk.latest});
    } else if (!kiosk.isCounting) {
        kiosk.isCounting = true;
        m_counting.push_back({kiosk.latest->kiosk, Clock::now()});
    }
}

void ChangeQueue::forget(const QString& kiosk, qint64 time)
{
    const std::lock_guard lock(m_mutex);
    m_kiosks.remove(kiosk);
    push({KioskChange::Forgotten, kiosk, time, 0, nullptr});
}

ChangeQueue::Batch ChangeQueue::waiting() const
{
    const std::lock_guard lock(m_mutex);
    Batch batch{m_first, {}};
    batch.changes.reserve(m_waiting.size());
    for (const Waiting& waiting : m_waiting)
        batch.changes.push_back(waiting.change);
    return batch;
}

std::vector<KioskChange> ChangeQueue::takeCounts(bool all)
{
    const std::lock_guard lock(m_mutex);
    const Clock::time_point due = Clock::now() - countsEvery;
    std::vector<KioskChange> taken;
    for (; !m_counting.empty() && (all || m_counting.front().since <= due);
         m_counting.pop_front()) {
        const auto kiosk = m_kiosks.find(m_counting.front().kiosk);
        if (kiosk == m_kiosks.end() || !kiosk->isCounting)
            continue;
        kiosk->isCounting = false;
        taken.push_back({KioskChange::Counts, kiosk.key(), kiosk->latest->time,
                         kiosk->latest->message, kiosk->latest});
    }
    return taken;
}

std::vector<KioskChange> ChangeQueue::latest() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<KioskChange> changes;
    for (auto kiosk = m_kiosks.constBegin(); kiosk != m_kiosks.constEnd(); ++kiosk) {
        if (kiosk->latest) {
            changes.push_back({KioskChange::State, kiosk.key(), kiosk->latest->time,
                               kiosk->latest->message, kiosk->latest});
        }
    }
    return changes;
}

quint64 ChangeQueue::messageBefore(const QString& kiosk) const
{
    const std::lock_guard lock(m_mutex);
    const auto known = m_kiosks.constFind(kiosk);
    return known == m_kiosks.constEnd() ? 0 : known->messageBefore;
}

void ChangeQueue::drop(quint64 before)
{
    const std::lock_guard lock(m_mutex);
    while (m_first < before && !m_waiting.empty())
        pop();
}

void ChangeQueue::dropOlder(Clock::time_point time)
{
    const std::lock_guard lock(m_mutex);
    while (!m_waiting.empty() && m_waiting.front().came < time)
        pop();
}

qint64 ChangeQueue::size() const
{
    const std::lock_guard lock(m_mutex);
    return qint64(m_waiting.size());
}

qint64 ChangeQueue::lost() const
{
    const std::lock_guard lock(m_mutex);
    return m_lost;
}

void ChangeQueue::push(KioskChange change)
{
    if (m_waiting.size() == mostWaiting) {
        pop();
        ++m_lost;
    }
    m_waiting.push_back({std::move(change), Clock::now()});
}

void ChangeQueue::pop()
{
    const KioskChange& change = m_waiting.front().change;
    const auto kiosk = m_kiosks.find(change.kiosk);
    if (kiosk != m_kiosks.end() && change.kind == KioskChange::State)
        kiosk->messageBefore = change.message;
    m_waiting.pop_front();
    ++m_first;
}

// PostgreSQL knows no NUL in a text.
QString ChangeQueue::shared(QString text, int longest)
{
    const auto known = m_texts.constFind(text);
    if (known != m_texts.constEnd())
        return *known;
    text.truncate(longest);
    text.remove(QChar(0));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    if (m_texts.size() < mostTexts)
        m_texts.insert(text);
    return text;
}
