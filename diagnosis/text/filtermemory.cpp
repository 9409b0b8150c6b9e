// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/filtermemory.h"

#include "abstractfilter.h"

FilterMemory::FilterMemory(AbstractFilter& filter)
    : m_filter(&filter)
    , m_words(&filterWords(filterName(filter)))
    , m_limit(m_words->limit ? qMax(0, filter.property(m_words->limit).toInt()) : 0)
    , m_count{filter.property("denom").toInt()}
{
}

void FilterMemory::startSession()
{
    m_count = {m_count.denomination};
    m_shown.clear();
}

void FilterMemory::add(const DeviceState& event, qint64 line)
{
    if (m_shown.isEmpty())
        m_count.first = m_count.since = m_count.newest = line;
    else if (m_words->count)
        count(event, line);
    m_shown += event;
}

void FilterMemory::count(const DeviceState& event, qint64 line)
{
    m_words->count(m_count, m_shown.constLast(), event, line);
    m_count.newest = line;
    if (int(m_count.lines.size()) > m_limit + 1) // the newest may not count in the end
        m_count.lines.pop_front();
    // What was the newest stays when it counts, until there are enough.
    const int before = m_count.total - (m_count.newestCounts() ? 1 : 0);
    const int kept = 1 + 2 * qMin(before, m_limit);
    if (m_shown.size() < kept)
        m_shown += DeviceState(); // ends a run
    else
        m_shown.erase(m_shown.begin() + kept, m_shown.end());
}

bool FilterMemory::refuses() const
{
    StatesList shown = m_shown;
    if (m_count.total < m_limit && m_shown.size() > 1) // what there was makes no difference
        shown = {m_shown.constFirst(), m_shown.constLast()};
    m_filter->setEvents(&shown);
    const bool refuses = m_filter->validate() != AbstractFilter::FILTER_ACCEPT;
    m_filter->setEvents(nullptr);
    return refuses;
}

Objection FilterMemory::objection() const
{
    const Finding finding = m_words->find({*m_filter, m_count, m_limit, m_shown.constLast()});
    return {filterName(*m_filter), filterParams(*m_filter), finding.lines, finding.text};
}
