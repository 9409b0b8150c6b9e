// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filterchain.h"

#include "log_p.h"

FilterChain::FilterChain()
{
    logDebug() << QStringLiteral("Creating filter chain");
}

FilterChain::~FilterChain()
{
    logDebug() << QStringLiteral("Deleting filter chain");
    clear();
}

FilterChain* FilterChain::setEvents(StatesList* source)
{
    logDebug() << QStringLiteral("Setting events source for the chain");
    m_events = source;
    return this;
}

FilterChain* FilterChain::add(PAbstractFilter filter)
{
    logDebug() << QStringLiteral("Append to chain: %1").arg(filter->getFilterName());
    filter->setEvents(m_events);
    m_filters.append(filter);
    return this;
}

AbstractFilter::FilterResult FilterChain::validate()
{
    if (!m_events)
        return AbstractFilter::FILTER_NO_EVENTS;
    // A copy: a filter that changes the chain does not change this verdict.
    const QList<AbstractFilter*> filters = m_filters;
    for (AbstractFilter* const filter : filters) {
        const AbstractFilter::FilterResult result = filter->validate();
        if (result != AbstractFilter::FILTER_ACCEPT) {
            logDebug() << QStringLiteral("Reject raised by %1").arg(filter->getFilterName());
            return result;
        }
    }
    return AbstractFilter::FILTER_ACCEPT;
}

FilterChain* FilterChain::clear()
{
    logDebug() << QStringLiteral("Clearing chain");
    qDeleteAll(m_filters);
    m_filters.clear();
    return this;
}
