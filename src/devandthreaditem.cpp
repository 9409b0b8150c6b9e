// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devandthreaditem.h"

#include "basefields_p.h"

const QString DevAndThreadItem::DEVICE_ID = QStringLiteral("device_id");
const QString DevAndThreadItem::THREAD_ID = QStringLiteral("thread_id");

namespace {

const auto& table()
{
    static const RecordTable table(devAndThreadFields<DevAndThreadItem>());
    return table;
}

} // namespace

QVariantMap DevAndThreadItem::toMap() const
{
    return table().toMap(*this);
}

bool DevAndThreadItem::fromMap(const QVariantMap& map, QString* error)
{
    return table().fromMap(map, *this, error);
}

bool DevAndThreadItem::operator==(const DevAndThreadItem& other) const
{
    return threadId == other.threadId && deviceId == other.deviceId;
}
