// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/notewatch.h"

#include <QSet>

#include <optional>
#include <utility>

/// What is paid, over losses of the service and of devices: what was told as paid before one and is
/// not in the sum that came back is lost, until the service has it again or the staff settles it.
class SumWatch
{
public:
    /// @param notes what became of pieces with that state
    /// @param isBusy whether some piece is in a device's hand
    /// @param wasComplete as in lose(), before that state: devices may be lost with it
    void take(const PublishedState& state, const std::vector<NoteWatch::Note>& notes, bool isBusy,
              bool wasComplete);

    /// The service cannot be heard any more.
    /// @param isComplete whether what is paid was enough; then nobody misses it, unless the service
    /// had not recorded it yet
    void lose(bool isComplete);

    void settle();

    qint64 sum() const { return m_sum; } ///< as it was told last
    bool isRecorded() const { return m_recorded.value_or(0) >= m_sum && m_sum > 0; }
    qint64 lost() const { return m_lost; }
    bool isLostRecorded() const { return m_lost > 0 && m_isLostRecorded; }

private:
    qint64 m_sum = 0;
    QSet<std::pair<int, int>> m_devices; // model and thread of those that have a part in it
    qint64 m_cardSum = 0; // of that, paid by card
    std::optional<qint64> m_recorded; // as the service says it
    bool m_isAway = false;
    qint64 m_before = 0; // this and the following of the loss that goes on
    bool m_isBeforeRecorded = false;
    qint64 m_lost = 0;
    bool m_isLostRecorded = false;
    qint64 m_whole = 0; // with what was paid since then, just the sum that has it again
};
