#include "droutemapitem.h"

#include "maprecord_p.h"

#include <QJsonDocument>

const QString DRouteMapItem::ROUTE = QStringLiteral("route");

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
    QVariantMap map = NoteItem::toMap();
    map.insert(ROUTE, int(route));
    return map;
}

bool DRouteMapItem::fromMap(const QVariantMap& map, QString* error)
{
    return NoteItem::fromMap(map, error) && RecordReader(map, error).read(ROUTE, route).complete();
}

bool DRouteMapItem::operator==(const DRouteMapItem& other) const
{
    return NoteItem::operator==(other) && route == other.route;
}

QList<DRouteMapItem> DRouteMap::fromJson(const QString& json)
{
    QList<DRouteMapItem> rows;
    const QVariantList elements = QJsonDocument::fromJson(json.toUtf8()).toVariant().toList();
    for (const QVariant& element : elements) {
        DRouteMapItem row;
        if (row.fromMap(element.toMap(), nullptr))
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
