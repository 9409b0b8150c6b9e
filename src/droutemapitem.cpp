// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "droutemapitem.h"

#include "basefields_p.h"
#include "json/variants.h"

#include <QJsonDocument>

const QString DRouteMapItem::ROUTE = QStringLiteral("route");

namespace {

auto fields()
{
    return joined(
        noteFields<DRouteMapItem>(),
        std::array{recordField<DRouteMapItem, &DRouteMapItem::route>(DRouteMapItem::ROUTE)});
}

} // namespace

DRouteMapItem::DRouteMapItem()
{
    currency = QStringLiteral("RUB");
}

DRouteMapItem::DRouteMapItem(unsigned int faceValue, const QString& currencyCode,
                             const Acceptors::billTypes& type, Route noteRoute,
                             unsigned int noteCount)
    : route(noteRoute)
{
    currency = currencyCode;
    denomination = static_cast<qint32>(faceValue);
    billType = type;
    count = static_cast<qint32>(noteCount);
}

QVariantMap DRouteMapItem::toMap() const
{
    return recordTable<fields>().toMap(*this);
}

bool DRouteMapItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<fields>().fromMap(map, *this, error);
}

bool DRouteMapItem::operator==(const DRouteMapItem& other) const
{
    return NoteItem::operator==(other) && route == other.route;
}

QList<DRouteMapItem> DRouteMap::fromJson(const QString& json)
{
    QList<DRouteMapItem> rows;
    const QVariantList elements = JsonReader::readList(json);
    for (const QVariant& element : elements) {
        DRouteMapItem row;
        if (row.fromMap(Variants::toMap(element), nullptr))
            rows.append(row);
    }
    return rows;
}

QString DRouteMap::toJson(const QList<DRouteMapItem>& rows)
{
    QVariantList elements;
    for (const DRouteMapItem& row : rows)
        elements.append(row.toMap());
    return QString::fromLatin1(QJsonDocument::fromVariant(elements).toJson());
}
