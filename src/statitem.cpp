// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "statitem.h"

#include "basefields_p.h"

#include <tuple>

const QString StatItem::NOTES_INSERTED = QStringLiteral("notes_inserted");
const QString StatItem::NOTES_REJECTED = QStringLiteral("notes_rejected");
const QString StatItem::NOTES_RETURNED = QStringLiteral("notes_returned");

namespace {

const auto& counterFields()
{
    static const std::array fields{
        recordField<StatItem, &StatItem::notesInserted>(StatItem::NOTES_INSERTED),
        recordField<StatItem, &StatItem::notesRejected>(StatItem::NOTES_REJECTED),
        recordField<StatItem, &StatItem::notesReturned>(StatItem::NOTES_RETURNED),
    };
    return fields;
}

const auto& table()
{
    static const RecordTable table(joined(devAndThreadFields<StatItem>(), counterFields()));
    return table;
}

} // namespace

QVariantMap StatItem::toMap() const
{
    return table().toMap(*this);
}

bool StatItem::fromMap(const QVariantMap& map, QString* error)
{
    return table().fromMap(map, *this, error);
}

void StatItem::addToMap(QVariantMap& map)
{
    for (const RecordField<StatItem>& counter : counterFields())
        map.insert(*counter.key, counter.get(*this));
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
