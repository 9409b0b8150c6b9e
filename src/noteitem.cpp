// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "noteitem.h"

#include "basefields_p.h"

const QString NoteItem::COUNT = QStringLiteral("count");

namespace {

const auto& table()
{
    static const RecordTable table(noteFields<NoteItem>());
    return table;
}

} // namespace

QVariantMap NoteItem::toMap() const
{
    return table().toMap(*this);
}

bool NoteItem::fromMap(const QVariantMap& map, QString* error)
{
    return table().fromMap(map, *this, error);
}

bool NoteItem::operator==(const NoteItem& other) const
{
    return BasicNoteItem::operator==(other) && count == other.count;
}
