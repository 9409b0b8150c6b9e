// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "text/filterwords.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

/// Why a filter refuses the newest event of a session.
struct Objection
{
    QString filter; ///< name, as the filters file has it
    QJsonObject params;
    /// The lines of the events that counted, in their order. They are enough: the filter would
    /// refuse the note too if all other events before it were idle ones.
    QVector<qint64> evidence;
    QString text; ///< what counted and what clears it
};

/// A filter and what it has counted of a session. Asked for a verdict, a filter walks over the
/// events of the session; shown only those that count, it says the same, and a note late in a long
/// session costs no more than an early one.
class FilterMemory
{
public:
    /// @param filter must last as long as this; its parameters stay as they are
    explicit FilterMemory(AbstractFilter& filter);

    const AbstractFilter& filter() const { return *m_filter; }

    void startSession();

    /// Counts the newest event of the session. Every event is given once.
    void add(const StatesList& events);

    /// The filter's verdict on the newest event.
    /// @param events those that were given
    bool refuses(const StatesList& events) const;

    /// Explains why it refuses the newest event.
    /// @param lines the line of each event in the log
    Objection objection(const StatesList& events, const QVector<qint64>& lines) const;

private:
    AbstractFilter* m_filter;
    const FilterWords* m_words;
    int m_limit; // so many counted events make it refuse
    FilterCount m_count;
    StatesList m_shown; // the first event, those that count, each the end of its run, the newest
};
