// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorservice.h"

#include <velmolib/acceptorstate.h>

#include <QDateTime>
#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

AcceptorService::AcceptorService(const QStringList& sessionFiles, const QJsonArray& filters)
{
    for (const QString& fileName : sessionFiles)
        m_devices.push_back(std::make_unique<SimulatedDevice>(fileName, filters));
    publish();
}

void AcceptorService::record(const QString& fileName)
{
    m_record.setFileName(fileName);
    if (!m_record.open(QIODevice::WriteOnly | QIODevice::Append)) {
        throw std::runtime_error(
            QStringLiteral("%1: %2").arg(fileName, m_record.errorString()).toStdString());
    }
}

// What it reported last goes into the ledger, and into the session log.
void AcceptorService::keep(SimulatedDevice& device)
{
    QJsonObject report = QJsonObject::fromVariantMap(device.lastReport());
    report.insert(QStringLiteral("time"),
                  QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    const QByteArray line = QJsonDocument(report).toJson(QJsonDocument::Compact);
    m_content.take(line);
    if (!m_record.isOpen())
        return;
    m_record.write(line + '\n');
    // Whoever follows the log sees the line at once.
    if (!m_record.flush())
        qWarning().noquote() << m_record.fileName() + QStringLiteral(": ") + m_record.errorString();
}

bool AcceptorService::step()
{
    bool stepped = false;
    for (const auto& device : m_devices) {
        if (!device->step())
            continue;
        stepped = true;
        keep(*device);
    }
    if (!stepped && m_isLooping) {
        for (const auto& device : m_devices)
            device->rewind();
        return step();
    }
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
    QVariantList refusals;
    for (const auto& device : m_devices) {
        if (!device->isKnown())
            continue;
        devices.append(device->toMap());
        refusals += device->refusals();
    }
    QVariantMap published = AcceptorState::stateMap(devices);
    published.insert(QStringLiteral("refusals"), refusals);
    published.insert(QStringLiteral("content"), m_content.toList());
    const QJsonDocument document(QJsonObject::fromVariantMap(published));
    const QString state = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    if (state == m_state)
        return;
    m_state = state;
    m_timestamp = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    Q_EMIT stateChanged(m_state, m_timestamp);
}
