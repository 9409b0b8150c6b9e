// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/filtermemory.h"

#include "abstractfilter.h"

#include <algorithm>

FilterMemory::FilterMemory(AbstractFilter& filter)
    : m_filter(&filter)
    , m_words(&filterWords(filterName(filter)))
    , m_limit(m_words->limit ? filter.property(m_words->limit).toInt() : 0)
    , m_count{filter.property("denom").toInt(), {}, 0}
{
}

void FilterMemory::startSession()
{
    m_count.events.clear();
    m_count.since = 0;
}

void FilterMemory::add(const StatesList& events)
{
    const int newest = int(events.size()) - 1;
    if (!m_words->count || newest == 0)
        return;
    m_words->count(m_count, events, newest);
    if (!m_words->limit)
        return;
    const QVector<int>& counted = m_count.events;
    // The event that was the newest stays when it counts.
    if (counted.isEmpty() || counted.constFirst() == newest)
        m_shown = {events.constFirst()};
    else if (std::binary_search(counted.constEnd() - qMin(2, int(counted.size())),
                                counted.constEnd(), newest - 1))
        m_shown += DeviceState(); // ends a run
    else
        m_shown.removeLast();
    m_shown += events.constLast();
}

bool FilterMemory::refuses(const StatesList& events) const
{
    StatesList shown = events;
    if (m_words->limit && m_count.events.size() >= m_limit && events.size() > 1)
        shown = m_shown;
    else if (m_words->count && events.size() > 1) // what there was makes no difference
        shown = {events.constFirst(), events.constLast()};
    m_filter->setEvents(&shown);
    const bool refuses = m_filter->validate() != AbstractFilter::FILTER_ACCEPT;
    m_filter->setEvents(nullptr);
    return refuses;
}

Objection FilterMemory::objection(const StatesList& events, const QVector<qint64>& lines) const
{
    const Finding finding = m_words->find({*m_filter, m_count, m_limit, events, lines});
    QVector<qint64> evidence;
    for (const int event : finding.events)
        evidence += lines.at(event);
    return {filterName(*m_filter), filterParams(*m_filter), evidence, finding.text};
}
