// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "basicnoteitem.h"

#include "basefields_p.h"

#include <tuple>

const QString BasicNoteItem::CURRENCY = QStringLiteral("currency");
const QString BasicNoteItem::DENOMINATION = QStringLiteral("denomination");
const QString BasicNoteItem::BILL_TYPE = QStringLiteral("bill_type");

QVariantMap BasicNoteItem::toMap() const
{
    return recordTable<basicNoteFields<BasicNoteItem>>().toMap(*this);
}

bool BasicNoteItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<basicNoteFields<BasicNoteItem>>().fromMap(map, *this, error);
}

bool BasicNoteItem::operator==(const BasicNoteItem& other) const
{
    return std::tie(currency, denomination, billType)
        == std::tie(other.currency, other.denomination, other.billType);
}
