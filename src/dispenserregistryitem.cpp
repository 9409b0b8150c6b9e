// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "dispenserregistryitem.h"

#include "basefields_p.h"
#include "dispenserregistryjson_p.h"
#include "wraparound_p.h"

#include <algorithm>
#include <tuple>

const QString DispenserRegistryItem::THREAD_ID = QStringLiteral("thread_id");
const QString DispenserRegistryItem::DEVICE_ID = QStringLiteral("device_id");
const QString DispenserRegistryItem::CHANNEL = QStringLiteral("channel");
const QString DispenserRegistryItem::REJECTED = QStringLiteral("rejected");

namespace {

using Row = DispenserRegistryItem;

auto fields()
{
    return joined(noteFields<Row>(),
                  std::array{recordField<Row, &Row::threadId>(Row::THREAD_ID),
                             recordField<Row, &Row::deviceId>(Row::DEVICE_ID),
                             recordField<Row, &Row::channel>(Row::CHANNEL),
                             recordField<Row, &Row::rejected>(Row::REJECTED, OptionalField)});
}

} // namespace

DispenserRegistryItem::DispenserRegistryItem(unsigned short thread, unsigned short device,
                                             unsigned short channelNo, Acceptors::billTypes type,
                                             QString currencyCode, unsigned int faceValue,
                                             unsigned int noteCount, unsigned short rejectedCount)
    : threadId(thread)
    , deviceId(device)
    , channel(channelNo)
    , rejected(rejectedCount)
{
    currency = currencyCode;
    denomination = static_cast<qint32>(faceValue);
    billType = type;
    count = static_cast<qint32>(noteCount);
}

QVariantMap DispenserRegistryItem::toMap() const
{
    return recordTable<fields>().toMap(*this);
}

bool DispenserRegistryItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<fields>().fromMap(map, *this, error);
}

DispenserRegistryItem DispenserRegistryItem::createFromMap(const QVariantMap& map)
{
    DispenserRegistryItem row;
    row.fromMap(map, nullptr);
    return row;
}

bool DispenserRegistryItem::like(const DispenserRegistryItem& other) const
{
    return std::tie(threadId, deviceId, channel, billType, currency, denomination)
        == std::tie(other.threadId, other.deviceId, other.channel, other.billType, other.currency,
                    other.denomination);
}

bool DispenserRegistryItem::operator==(const DispenserRegistryItem& other) const
{
    return NoteItem::operator==(other)
        && std::tie(threadId, deviceId, channel, rejected)
        == std::tie(other.threadId, other.deviceId, other.channel, other.rejected);
}

DispenserRegistryItem operator-(const DispenserRegistryItem& a, const DispenserRegistryItem& b)
{
    DispenserRegistryItem difference = a;
    difference.count = wrappingDifference(a.count, b.count);
    return difference;
}

bool DRListRoutines::less(const DispenserRegistryItem& a, const DispenserRegistryItem& b)
{
    if (a.denomination != b.denomination)
        return a.denomination < b.denomination;
    return a.billType == Acceptors::Coin && b.billType == Acceptors::Bill;
}

bool DRListRoutines::devLess(const QList<DispenserRegistryItem>& a,
                             const QList<DispenserRegistryItem>& b)
{
    // Unsigned, unlike the order of the rows: a negative face value makes a device the last one.
    const auto key = [](const QList<DispenserRegistryItem>& rows) {
        return rows.isEmpty() ? 0U : static_cast<quint32>(rows.last().denomination);
    };
    return !b.isEmpty() && key(a) < key(b);
}

void DRListRoutines::sort(QList<DispenserRegistryItem>& rows)
{
    std::stable_sort(rows.begin(), rows.end(), less);
}

void DRListRoutines::sortDevices(QList<QList<DispenserRegistryItem>>& devices)
{
    std::for_each(devices.begin(), devices.end(), sort);
    std::stable_sort(devices.begin(), devices.end(), devLess);
}

void writeJson(JsonWriter& json, const QList<DispenserRegistryItem>& rows)
{
    json.beginArray();
    for (const DispenserRegistryItem& row : rows)
        recordTable<fields>().write(json, row);
    json.endArray();
}

bool skipJsonRows(JsonReader& json)
{
    if (!json.isAtArray())
        return json.skipValue();
    const auto& table = recordTable<fields>();
    return json.readArray([&] { return json.isAtObject() ? table.skip(json) : json.skipValue(); });
}
