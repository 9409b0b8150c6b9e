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
        && *counter - *m_counter > m_notes + m_late + int(m_isUncounted) + int(mayBegin);
}

std::optional<NoteCounter::Jump> NoteCounter::take(qint64 counter, bool isNews, qint64 line,
                                                   int collections)
{
    const qint64 rise = counter - m_counter.value_or(counter);
    if (rise > m_notes + m_late)
        count(); // one that is begun
    const Jump jump{rise, m_notes + m_late, m_line, m_collections};
    const bool mayBeLate = m_notes > 0 || !isNews;
    m_late = mayBeLate ? qBound(qint64(0), jump.notes - qMax<qint64>(0, rise), qint64(1)) : 0;
    m_notes = 0;
    m_counter = counter;
    m_line = line;
    m_collections = collections;
    return jump.rise > jump.notes ? std::optional<Jump>(jump) : std::nullopt;
}
