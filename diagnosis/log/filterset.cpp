// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/filterset.h"

#include "filterchain.h"
#include "filterfactory.h"
#include "text/filterwords.h"

#include <climits>

FilterSet::FilterSet(const QList<Filter>& filters, const QMap<quint32, QString>& deviceNames)
    : m_filters(filters)
    , m_deviceNames(deviceNames)
{
}

void FilterSet::addDeviceNames(const FilterSet& other)
{
    for (auto name = other.m_deviceNames.begin(); name != other.m_deviceNames.end(); ++name) {
        if (!m_deviceNames.contains(name.key()))
            m_deviceNames.insert(name.key(), name.value());
    }
}

QList<AbstractFilter*> FilterSet::addTo(FilterChain& chain) const
{
    QList<AbstractFilter*> made;
    for (const auto& [name, params] : m_filters) {
        made.append(FilterFactory::createFilter(name, params));
        chain.add(made.last());
    }
    return made;
}

QStringList FilterSet::rules() const
{
    FilterChain chain;
    const QList<AbstractFilter*> made = addTo(chain);
    QStringList sentences;
    for (const AbstractFilter* const filter : made)
        sentences += filterRule(*filter);
    return sentences;
}

std::optional<int> FilterSet::sumLimit() const
{
    FilterChain chain;
    std::optional<int> lowest;
    const QList<AbstractFilter*> made = addTo(chain);
    for (const AbstractFilter* const filter : made) {
        const QVariant limit = filter->property("sessionSum");
        if (limit.isValid())
            lowest = qMin(lowest.value_or(INT_MAX), limit.toInt());
    }
    return lowest;
}
