#include "basicnoteitem.h"

#include "maprecord_p.h"

#include <tuple>

const QString BasicNoteItem::CURRENCY = QStringLiteral("currency");
const QString BasicNoteItem::DENOMINATION = QStringLiteral("denomination");
const QString BasicNoteItem::BILL_TYPE = QStringLiteral("bill_type");

QVariantMap BasicNoteItem::toMap() const
{
    return {{CURRENCY, currency}, {DENOMINATION, denomination}, {BILL_TYPE, int(billType)}};
}

bool BasicNoteItem::fromMap(const QVariantMap& map, QString* error)
{
    return RecordReader(map, error)
        .read(CURRENCY, currency)
        .read(DENOMINATION, denomination)
        .read(BILL_TYPE, billType)
        .complete();
}

bool BasicNoteItem::operator==(const BasicNoteItem& other) const
{
    return std::tie(currency, denomination, billType)
        == std::tie(other.currency, other.denomination, other.billType);
}
