// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devandthreaditem.h"

#include "basefields_p.h"

const QString DevAndThreadItem::DEVICE_ID = QStringLiteral("device_id");
const QString DevAndThreadItem::THREAD_ID = QStringLiteral("thread_id");

QVariantMap DevAndThreadItem::toMap() const
{
    return recordTable<devAndThreadFields<DevAndThreadItem>>().toMap(*this);
}

bool DevAndThreadItem::fromMap(const QVariantMap& map, QString* error)
{
    return recordTable<devAndThreadFields<DevAndThreadItem>>().fromMap(map, *this, error);
}

bool DevAndThreadItem::operator==(const DevAndThreadItem& other) const
{
    return threadId == other.threadId && deviceId == other.deviceId;
}
