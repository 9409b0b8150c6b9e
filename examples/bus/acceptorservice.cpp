#include "acceptorservice.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

AcceptorService::AcceptorService(const QStringList& sessionFiles, const QJsonArray& filters)
{
    for (const QString& fileName : sessionFiles)
        m_devices.push_back(std::make_unique<SimulatedDevice>(fileName, filters));
    publish();
}

bool AcceptorService::step()
{
    bool stepped = false;
    for (const auto& device : m_devices)
        stepped = device->step() || stepped;
    publish();
    return stepped;
}

QString AcceptorService::currentState(QString& timestamp) const
{
    timestamp = m_timestamp;
    return m_state;
}

void AcceptorService::publish()
{
    QVariantList devices;
    QVariantMap verdicts;
    for (const auto& device : m_devices) {
        if (!device->isKnown())
            continue;
        const QVariantMap map = device->toMap();
        const bool accepted = device->verdict() == AbstractFilter::FILTER_ACCEPT;
        devices.append(map);
        verdicts.insert(map.value(deviceStateDescConst::DEVICE_ID).toString(),
                        accepted ? QStringLiteral("accept") : QStringLiteral("reject"));
    }
    const QJsonDocument document(QJsonObject::fromVariantMap(
        {{QStringLiteral("device_states"), devices}, {QStringLiteral("verdicts"), verdicts}}));
    const QString state = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    if (state == m_state)
        return;
    m_state = state;
    m_timestamp = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    Q_EMIT stateChanged(m_state, m_timestamp);
}
