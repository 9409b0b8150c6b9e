// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"

#include <QVector>

class AbstractFilter;

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

    /// The events that count, oldest first.
    const QVector<int>& counted() const { return m_counted; }

    /// The event since which the filter counts; 0 for the one with which the session began.
    int since() const { return m_since; }

    /// So many counted events make it refuse.
    int limit() const { return m_limit; }

private:
    struct Rule;

    AbstractFilter* m_filter;
    const Rule* m_rule; // null for a filter of which nothing is known
    int m_denomination;
    int m_limit;
    QVector<int> m_counted;
    StatesList m_shown; // the first event, those that count, each the end of its run, the newest
    int m_since = 0;
};
