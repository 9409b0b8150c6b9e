// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "statitem.h"

#include "basefields_p.h"

#include <tuple>

const QString StatItem::NOTES_INSERTED = QStringLiteral("notes_inserted");
const QString StatItem::NOTES_REJECTED = QStringLiteral("notes_rejected");
const QString StatItem::NOTES_RETURNED = QStringLiteral("notes_returned");

namespace {

auto counterFields()
{
    return std::array{
        recordField<StatItem, &StatItem::notesInserted>(StatItem::NOTES_INSERTED),
        recordField<StatItem, &StatItem::notesRejected>(StatItem::NOTES_REJECTED),
        recordField<StatItem, &StatItem::notesReturned>(StatItem::NOTES_RETURNED),
    };
}

auto fields()
{
    return joined(devAndThreadFields<StatItem>(), counterFields());
}

} // namespace

QVariantMap StatItem::toMap() const
{
    return recordTable<fields>().toMap(*this);
}

bool StatItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<fields>().fromMap(map, *this, error);
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
