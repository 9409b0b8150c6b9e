// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "abstractfilter.h"
#include "velmolib_global.h"

#include <QList>

/// The filters of one device, run in the order in which they were added: the first one that
/// objects decides.
///
/// Set the event source first, then add the filters: a filter keeps the event source that the
/// chain held when it was added. The chain owns its filters and deletes them; the caller keeps the
/// event source alive. Every call is logged at debug level, validate() only when a filter refuses.
class VELMOLIB_EXPORT FilterChain
{
public:
    FilterChain(); ///< no filters, no event source
    ~FilterChain(); ///< deletes the filters

    /// Sets the event source for filters that are added from now on; null means none.
    /// @return this chain, as the other calls do
    FilterChain* setEvents(StatesList* source);

    /// Appends a filter, which must not be null, and takes ownership of it.
    FilterChain* add(PAbstractFilter filter);

    /// The verdict on the newest event: FILTER_NO_EVENTS without an event source, otherwise the
    /// first answer that is not FILTER_ACCEPT. An empty chain accepts.
    AbstractFilter::FilterResult validate();

    /// Deletes all filters. The event source stays.
    FilterChain* clear();

private:
    Q_DISABLE_COPY(FilterChain)

    QList<AbstractFilter*> m_filters;
    StatesList* m_events = nullptr;
};
