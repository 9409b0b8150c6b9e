// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/filtermemory.h"

#include "abstractfilter.h"
#include "filterfactory.h"

#include <algorithm>
#include <iterator>

struct FilterMemory::Rule
{
    const char* filter;
    const char* limit; // the parameter; null for one that counts nothing
    // Takes in an event that is not the first, which no filter looks at.
    void (*count)(FilterMemory& memory, const StatesList& events, int event);
};

namespace {

void countNothing(FilterMemory& /*memory*/, const StatesList& /*events*/, int /*event*/) { }

} // namespace

FilterMemory::FilterMemory(AbstractFilter& filter)
    : m_filter(&filter)
{
    static const Rule rules[] = {
        {filters::ACCEPT_FILTER, nullptr, countNothing},
        {filters::ATTEMPTS_FILTER, "attempts",
         [](FilterMemory& memory, const StatesList& events, int event) {
             if (events.at(event).state == STATE_STACKED) {
                 memory.m_counted.clear();
                 memory.m_since = event;
             } else if (events.at(event).state == STATE_REJECTED) {
                 memory.m_counted += event;
             }
         }},
        {filters::DENOM_COUNT_FILTER, "count",
         [](FilterMemory& memory, const StatesList& events, int event) {
             const DeviceState& newest = events.at(event);
             if (newest.state != STATE_ACCEPTED)
                 return;
             // Of a run the newest one counts.
             if (events.at(event - 1).state == STATE_ACCEPTED && !memory.m_counted.isEmpty()
                 && memory.m_counted.constLast() == event - 1)
                 memory.m_counted.removeLast();
             if (newest.currentNote == memory.m_denomination)
                 memory.m_counted += event;
         }},
        {filters::SESSION_SUM_FILTER, nullptr,
         [](FilterMemory& memory, const StatesList& events, int event) {
             if (events.at(event).sessionSum != events.at(event - 1).sessionSum)
                 memory.m_since = event;
         }},
    };
    const auto* const rule = std::find_if(std::begin(rules), std::end(rules), [&](const Rule& r) {
        return qstrcmp(filter.metaObject()->className(), r.filter) == 0;
    });
    m_rule = rule == std::end(rules) ? nullptr : rule;
    m_denomination = filter.property("denom").toInt();
    m_limit = m_rule && m_rule->limit ? filter.property(m_rule->limit).toInt() : 0;
}

void FilterMemory::startSession()
{
    m_counted.clear();
    m_since = 0;
}

void FilterMemory::add(const StatesList& events)
{
    const int newest = int(events.size()) - 1;
    if (!m_rule || newest == 0)
        return;
    m_rule->count(*this, events, newest);
    if (!m_rule->limit)
        return;
    // The event that was the newest stays when it counts.
    if (m_counted.isEmpty() || m_counted.constFirst() == newest)
        m_shown = {events.constFirst()};
    else if (std::binary_search(m_counted.constEnd() - qMin(2, int(m_counted.size())),
                                m_counted.constEnd(), newest - 1))
        m_shown += DeviceState(); // ends a run
    else
        m_shown.removeLast();
    m_shown += events.constLast();
}

bool FilterMemory::refuses(const StatesList& events) const
{
    StatesList shown = events;
    if (m_rule && m_rule->limit && m_counted.size() >= m_limit && events.size() > 1)
        shown = m_shown;
    else if (m_rule && events.size() > 1) // what there was makes no difference
        shown = {events.constFirst(), events.constLast()};
    m_filter->setEvents(&shown);
    const bool refuses = m_filter->validate() != AbstractFilter::FILTER_ACCEPT;
    m_filter->setEvents(nullptr);
    return refuses;
}
