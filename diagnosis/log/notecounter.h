// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/logplayer.h"

#include <optional>

/// Holds the notes of a log against the counter that their device publishes. The last one may be
/// counted a state late.
class NoteCounter
{
public:
    /// A note may have begun.
    void begin() { m_isUncounted = true; }

    /// What was begun is a note.
    void count();

    /// Whether what was begun last is one, perhaps by the counter alone.
    bool isCounted() const { return !m_isUncounted; }

    /// Whether the counter seems to tell of notes that the log does not have.
    /// @param mayBegin the line that tells it may be of another note
    bool missesNotes(std::optional<qint64> counter, bool mayBegin) const;

    struct Jump
    {
        qint64 rise;
        qint64 notes; ///< of the log
        qint64 sinceLine; ///< when the counter was told before
        int collections; ///< of the cassette then
    };

    /// Takes the counter; a jump when it tells of more notes than the log.
    /// @param isNews it is of another state than before
    std::optional<Jump> take(qint64 counter, bool isNews, qint64 line, int collections);

    bool isKnown() const { return m_counter.has_value(); }

private:
    bool m_isUncounted = false; // the note that was begun last
    qint64 m_notes = 0; // since the counter was told
    qint64 m_late = 0; // of those before, which it may not have yet
    std::optional<qint64> m_counter; // as told last
    qint64 m_line = 0;
    int m_collections = 0;
};
