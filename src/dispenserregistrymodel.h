// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "dispenserregistryitem.h"

/// The dispenser registry: the rows of all channels that the service knows, in the order in which
/// they came. References and pointers into it stay valid until the registry is next changed.
class VELMOLIB_EXPORT DispenserRegistryModel
{
public:
    static const QString DISPENSER_REGISTRY; ///< "dispenser_registry": the only key of its map

    void clear(); ///< removes all rows
    QList<DispenserRegistryItem> items() const; ///< a copy of the rows
    void assign(const QList<DispenserRegistryItem>& rows); ///< replaces all rows

    /// Appends a row, whether or not an alike one is there. Always true.
    bool insert(const DispenserRegistryItem& row);

    /// The row at @p index, which the caller keeps below the number of rows.
    DispenserRegistryItem& operator[](const unsigned int& index);

    /// The first row that is like @p pattern (DispenserRegistryItem::like); null without one.
    DispenserRegistryItem* find(const DispenserRegistryItem& pattern);

    /// Updates or inserts: overwrites the first row like @p row whole, or appends it. @p inserted
    /// receives whether it was appended; it may be null.
    /// @return the row in the registry, never null
    DispenserRegistryItem* ui(const DispenserRegistryItem& row, bool* inserted = nullptr);

    /// Replaces the rows by those of a registry map. An element that is no row map or lacks keys
    /// still gives a row, with defaults where nothing was read.
    /// @return false, with the rows as they were, when the map has no "dispenser_registry"
    bool fromMap(const QVariantMap& map);

    /// {"dispenser_registry": list of row maps}, the list empty for an empty registry.
    QVariantMap toMap() const;

    /// {"dispenser_registry": map of the first row of that service thread}; an empty map when the
    /// thread has no row.
    QVariantMap toMap(unsigned short threadId) const;

private:
    QList<DispenserRegistryItem> m_rows;
};
