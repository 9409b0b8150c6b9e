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
/// events of the session; shown only those that count, and of those as many as are enough, it says
/// the same, and a note late in a long session costs no more than an early one. Of a filter that
/// nothing is known of, every event is kept.
class FilterMemory
{
public:
    /// @param filter must last as long as this; its parameters stay as they are
    explicit FilterMemory(AbstractFilter& filter);

    const AbstractFilter& filter() const { return *m_filter; }

    void startSession();

    /// Takes in the next event of the session.
    /// @param line its line in the log
    void add(const DeviceState& event, qint64 line);

    /// The filter's verdict on the newest event.
    bool refuses() const;

    /// Explains why it refuses the newest event.
    Objection objection() const;

private:
    void count(const DeviceState& event, qint64 line);

    AbstractFilter* m_filter;
    const FilterWords* m_words;
    int m_limit; // so many counted events make it refuse
    FilterCount m_count;
    StatesList m_shown; // the first event, those that count, each the end of its run, the newest
};
