// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <utility>

class AbstractFilter;
class FilterChain;

/// Note filters as they are configured, from which every device gets its own.
class FilterSet
{
public:
    /// A filter's name in FilterFactory, and parameters that it can hold.
    using Filter = std::pair<QString, QVariantMap>;

    /// @param deviceNames what devices are called, by identifier
    explicit FilterSet(const QList<Filter>& filters,
                       const QMap<quint32, QString>& deviceNames = {});

    /// Makes the filters and adds them to the chain, which owns them. Returns them in chain order.
    QList<AbstractFilter*> addTo(FilterChain& chain) const;

    /// What each filter does, in a sentence.
    QStringList rules() const;

    /// The lowest limit of a session's sum; none without one.
    std::optional<int> sumLimit() const;

    /// What devices are called, by identifier.
    QMap<quint32, QString> deviceNames() const { return m_deviceNames; }

    /// Names devices as another set does, where this one has no name for them.
    void addDeviceNames(const FilterSet& other);

private:
    QList<Filter> m_filters;
    QMap<quint32, QString> m_deviceNames;
};
