#include "devandthreaditem.h"

#include "maprecord_p.h"

const QString DevAndThreadItem::DEVICE_ID = QStringLiteral("device_id");
const QString DevAndThreadItem::THREAD_ID = QStringLiteral("thread_id");

QVariantMap DevAndThreadItem::toMap() const
{
    return {{DEVICE_ID, deviceId}, {THREAD_ID, int(threadId)}};
}

bool DevAndThreadItem::fromMap(const QVariantMap& map, QString* error)
{
    return RecordReader(map, error).read(DEVICE_ID, deviceId).read(THREAD_ID, threadId).complete();
}

bool DevAndThreadItem::operator==(const DevAndThreadItem& other) const
{
    return threadId == other.threadId && deviceId == other.deviceId;
}
