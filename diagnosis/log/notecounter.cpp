// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/notecounter.h"

#include <utility>

void NoteCounter::count()
{
    if (std::exchange(m_isUncounted, false))
        ++m_notes;
}

bool NoteCounter::missesNotes(std::optional<qint64> counter, bool mayBegin) const
{
    return counter && m_counter
        && *counter - *m_counter > m_notes + int(m_isUncounted) + int(mayBegin);
}

std::optional<NoteCounter::Jump> NoteCounter::take(qint64 counter, qint64 line, int collections)
{
    const qint64 rise = counter - m_counter.value_or(counter);
    if (rise > m_notes)
        count(); // one that is begun
    const Jump jump{rise, m_notes, m_line, m_collections};
    m_notes = qBound(qint64(0), m_notes - qMax<qint64>(0, rise), qint64(1));
    m_counter = counter;
    m_line = line;
    m_collections = collections;
    return jump.rise > jump.notes ? std::optional<Jump>(jump) : std::nullopt;
}
