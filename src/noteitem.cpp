// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "noteitem.h"

#include "basefields_p.h"

const QString NoteItem::COUNT = QStringLiteral("count");

QVariantMap NoteItem::toMap() const
{
    return recordTable<noteFields<NoteItem>>().toMap(*this);
}

bool NoteItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<noteFields<NoteItem>>().fromMap(map, *this, error);
}

bool NoteItem::operator==(const NoteItem& other) const
{
    return BasicNoteItem::operator==(other) && count == other.count;
}
