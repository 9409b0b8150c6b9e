#include "noteitem.h"

#include "maprecord_p.h"

const QString NoteItem::COUNT = QStringLiteral("count");

QVariantMap NoteItem::toMap() const
{
    QVariantMap map = BasicNoteItem::toMap();
    map.insert(COUNT, count);
    return map;
}

bool NoteItem::fromMap(const QVariantMap& map, QString* error)
{
    return BasicNoteItem::fromMap(map, error)
        && RecordReader(map, error).read(COUNT, count).complete();
}

bool NoteItem::operator==(const NoteItem& other) const
{
    return BasicNoteItem::operator==(other) && count == other.count;
}
