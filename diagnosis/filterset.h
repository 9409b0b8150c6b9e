// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <utility>

class AbstractFilter;
class ArrayFile;
class FilterChain;

/// What a JSON array holds, by its content.
enum class ListKind {
    Filters, ///< {"name": ..., "params": {...}}
    Settings, ///< {"group": ..., "key": ..., "value": ...}
    Other ///< none of the two, for example nothing
};

ListKind kindOf(const ArrayFile& file);

/// Throws Fault when the file is of the one kind where the other is wanted; what is wrong with a
/// file of neither kind, its reader says.
void requireKind(const ArrayFile& file, ListKind wanted);

/// Note filters as they are configured, from which every device gets its own.
class FilterSet
{
public:
    /// Takes the filters of a filters file, or those that a settings list implies: accept all or
    /// nothing, the limits of the rejections, and the maximum sum when it is above 0. Throws Fault
    /// for a file of the other kind, an unknown filter or parameter and a value that a parameter
    /// cannot hold.
    FilterSet(const ArrayFile& file, ListKind kind);

    /// Makes the filters and adds them to the chain, which owns them. Returns them in chain order.
    QList<AbstractFilter*> addTo(FilterChain& chain) const;

    /// What each filter does, in a sentence.
    QStringList rules() const;

    /// The lowest limit of a session's sum; none without one.
    std::optional<int> sumLimit() const;

    /// The names that the settings give to devices, by device identifier.
    QMap<quint32, QString> deviceNames() const { return m_deviceNames; }

    /// Names devices as other settings do, where these have no name for them.
    void addDeviceNames(const FilterSet& other);

private:
    void addFilters(const ArrayFile& file);
    void addSettings(const ArrayFile& file);

    QList<std::pair<QString, QVariantMap>> m_filters; // names and parameters
    QMap<quint32, QString> m_deviceNames;
};

/// The filter's name as the filters file has it.
QString filterName(const AbstractFilter& filter);

/// The filter's parameters with the values that it holds.
QJsonObject filterParams(const AbstractFilter& filter);
