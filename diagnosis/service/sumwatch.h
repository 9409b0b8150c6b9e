// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/notewatch.h"

/// What is paid, over losses of the service: what was told as paid before one and is not in the sum
/// that came back is lost, until the service has it again or the staff settles it.
class SumWatch
{
public:
    /// @param notes what became of pieces with that state
    /// @param isBusy whether some piece is in a device's hand
    void take(const PublishedState& state, const std::vector<NoteWatch::Note>& notes, bool isBusy);

    /// The service cannot be heard any more.
    /// @param isComplete whether what is paid was enough; then nobody misses it
    void lose(bool isComplete);

    void settle();

    qint64 sum() const { return m_sum; } ///< as it was told last
    bool isRecorded() const { return m_recorded >= m_sum && m_sum > 0; }
    qint64 lost() const { return m_lost; }
    bool isLostRecorded() const { return m_lost > 0 && m_isLostRecorded; }

private:
    qint64 m_sum = 0;
    qint64 m_cardSum = 0; // of that, paid by card
    qint64 m_recorded = 0;
    bool m_isAway = false;
    qint64 m_before = 0; // this and the following of the loss that goes on
    bool m_isBeforeRecorded = false;
    qint64 m_lost = 0;
    bool m_isLostRecorded = false;
    qint64 m_whole = 0; // with what was paid since then, the sum that has it again
};
