// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorservice.h"

#include <velmolib/acceptorstate.h>

#include <QDateTime>
#include <QDebug>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace {

const QString timeKey = QStringLiteral("time");
const QString currencyKey = QStringLiteral("currency");

QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
}

} // namespace

AcceptorService::AcceptorService(const QStringList& sessionFiles, const QJsonArray& filters)
{
    for (const QString& fileName : sessionFiles)
        m_devices.push_back(std::make_unique<SimulatedDevice>(fileName, filters));
    m_heartbeat.setInterval(5000);
    connect(&m_heartbeat, &QTimer::timeout, this, &AcceptorService::send);
    publish();
}

void AcceptorService::record(const QString& fileName)
{
    m_incidents.readLog(fileName);
    m_record.setFileName(fileName);
    if (!m_record.open(QIODevice::ReadWrite | QIODevice::Append)) {
        throw std::runtime_error(
            QStringLiteral("%1: %2").arg(fileName, m_record.errorString()).toStdString());
    }
    // A service that was killed may have left the beginning of a line.
    if (m_record.seek(std::max<qint64>(0, m_record.size() - 1))
        && !m_record.readAll().endsWith('\n') && m_record.size() > 0)
        m_record.write("\n");
    publish();
}

void AcceptorService::setMoney(const QString& currency, int digits)
{
    m_money.insert(currencyKey, currency);
    m_money.insert(QStringLiteral("digits"), digits);
    publish();
}

void AcceptorService::setChange(const QString& change)
{
    m_money.insert(QStringLiteral("change"), change);
    publish();
}

// Whether the line stands in the log for good.
bool AcceptorService::write(QVariantMap line)
{
    if (!line.contains(timeKey))
        line.insert(timeKey, now());
    const QByteArray text =
        QJsonDocument(QJsonObject::fromVariantMap(line)).toJson(QJsonDocument::Compact);
    m_content.take(text);
    if (!m_record.isOpen())
        return false;
    const bool isWritten = m_record.write(text + '\n') > 0 && m_record.flush();
    if (!isWritten)
        qWarning().noquote() << m_record.fileName() + QStringLiteral(": ") + m_record.errorString();
    return isWritten && fsync(m_record.handle()) == 0;
}

// What it reported last goes into the ledger, and into the session log.
void AcceptorService::keep(SimulatedDevice& device)
{
    QVariantMap report = device.lastReport();
    report.insert(timeKey, now());
    if (device.pieceEnd() == SimulatedDevice::Piece::Stuck)
        report.insert(QStringLiteral("incident"), m_incidents.open(report));
    // What was written before may be of another session.
    m_recorded[&device] = write(report) ? device.sessionSum() : 0;
    if (device.pieceEnd() == SimulatedDevice::Piece::Ended)
        settle(m_incidents.openOf(report));
}

bool AcceptorService::settle(const QString& incident)
{
    const QVariantMap end = m_incidents.settle(incident);
    if (end.isEmpty())
        return false;
    write(end);
    publish();
    return true;
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
        // The staff has been there.
        for (const QVariant& incident : m_incidents.toList())
            settle(incident.toMap().value(QStringLiteral("number")).toString());
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
    if (m_record.isOpen()) // which has their numbers
        published.insert(QStringLiteral("incidents"), incidents());
    published.insert(QStringLiteral("money"), money());
    const QJsonDocument document(QJsonObject::fromVariantMap(published));
    const QString state = QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    if (state == m_state)
        return;
    m_state = state;
    send();
}

void AcceptorService::send()
{
    m_timestamp = now();
    m_heartbeat.start();
    Q_EMIT stateChanged(m_state, m_timestamp);
}

QVariantMap AcceptorService::money() const
{
    qint64 recorded = 0;
    for (const auto& [device, sum] : m_recorded)
        recorded += sum;
    QVariantMap money = m_money;
    money.insert(QStringLiteral("recorded"), recorded);
    return money;
}

QVariantList AcceptorService::incidents() const
{
    QVariantList incidents = m_incidents.toList();
    if (m_money.contains(currencyKey)) {
        for (QVariant& incident : incidents) {
            QVariantMap entry = incident.toMap();
            entry.insert(currencyKey, m_money.value(currencyKey));
            incident = entry;
        }
    }
    return incidents;
}
