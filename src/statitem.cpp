#include "statitem.h"

#include "maprecord_p.h"

#include <tuple>

const QString StatItem::NOTES_INSERTED = QStringLiteral("notes_inserted");
const QString StatItem::NOTES_REJECTED = QStringLiteral("notes_rejected");
const QString StatItem::NOTES_RETURNED = QStringLiteral("notes_returned");

QVariantMap StatItem::toMap() const
{
    QVariantMap map = DevAndThreadItem::toMap();
    StatItem::addToMap(map);
    return map;
}

bool StatItem::fromMap(const QVariantMap& map, QString* error)
{
    return DevAndThreadItem::fromMap(map, error)
        && RecordReader(map, error)
               .read(NOTES_INSERTED, notesInserted)
               .read(NOTES_REJECTED, notesRejected)
               .read(NOTES_RETURNED, notesReturned)
               .complete();
}

void StatItem::addToMap(QVariantMap& map) const
{
    map.insert(NOTES_INSERTED, notesInserted);
    map.insert(NOTES_REJECTED, notesRejected);
    map.insert(NOTES_RETURNED, notesReturned);
}

bool StatItem::eqDev(const StatItem& other) const
{
    return deviceId == other.deviceId && threadId == other.threadId;
}

bool StatItem::operator==(const StatItem& other) const
{
    return DevAndThreadItem::operator==(other)
        && std::tie(notesInserted, notesRejected, notesReturned)
        == std::tie(other.notesInserted, other.notesRejected, other.notesReturned);
}
