// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "noteitem.h"

#include <QList>

/// One row of the route map: where the service sends notes or coins of one kind.
class VELMOLIB_EXPORT DRouteMapItem : public NoteItem
{
public:
    /// The routes are the service's own numbers; any number is kept as it is.
    enum Route : qint32 { RouteDefault = 0 };

    static const QString ROUTE; ///< "route": int

    /// A row of currency "RUB", otherwise zero.
    DRouteMapItem();

    /// The unsigned face value and count are stored bit by bit in the signed fields.
    DRouteMapItem(unsigned int faceValue, const QString& currencyCode,
                  const Acceptors::billTypes& type, Route noteRoute, unsigned int noteCount);

    QVariantMap toMap() const override;

    /// Reads the note's keys, then "route"; all are required.
    bool fromMap(const QVariantMap& map, QString* error = nullptr) override;

    /// Whether all fields are equal, or some differ.
    bool operator==(const DRouteMapItem& other) const;
    bool operator!=(const DRouteMapItem& other) const { return !(*this == other); }

    Route route = RouteDefault; ///< where the service sends the notes
};

/// The route map as the text in which the service settings keep it: a JSON array with one object,
/// the map of DRouteMapItem, for each row.
namespace DRouteMap {

/// Reads a route map. A text that is no JSON array gives no rows; an element that is no object or
/// lacks a key is left out.
VELMOLIB_EXPORT QList<DRouteMapItem> fromJson(const QString& json);

/// Writes a route map as indented JSON, keys in ascending order. A currency code that is not ASCII
/// does not read back.
VELMOLIB_EXPORT QString toJson(const QList<DRouteMapItem>& rows);

} // namespace DRouteMap
