// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "incidents.h"

#include <velmolib/devicestatesconst.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace deviceStateDescConst;

namespace {

const QString numberKey = QStringLiteral("number");
const QString incidentKey = QStringLiteral("incident");
const QString settledKey = QStringLiteral("settled");
const QString beganKey = QStringLiteral("time");

bool isSameDevice(const QVariantMap& one, const QVariantMap& other)
{
    return one.value(DEVICE_ID).toUInt() == other.value(DEVICE_ID).toUInt()
        && one.value(THREAD_ID).toUInt() == other.value(THREAD_ID).toUInt();
}

QVariantMap entryOf(const QVariantMap& report, const QString& name)
{
    return {{numberKey, name},
            {DEVICE_ID, report.value(DEVICE_ID)},
            {THREAD_ID, report.value(THREAD_ID)},
            {QStringLiteral("denomination"), report.value(CURRENT_NOTE)},
            {beganKey, report.value(beganKey)},
            {settledKey, false}};
}

} // namespace

void Incidents::readLog(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (!line.contains("\"incident\"") && !line.contains("\"settled\""))
            continue;
        const QVariantMap report = QJsonDocument::fromJson(line).object().toVariantMap();
        settle(report.value(settledKey).toString());
        const QString name = report.value(incidentKey).toString();
        if (name.isEmpty())
            continue;
        m_last = std::max(m_last, name.section(QLatin1Char('-'), -1).toInt());
        m_open += entryOf(report, name);
    }
}

QString Incidents::open(const QVariantMap& report)
{
    const QString name = QStringLiteral("%1-%2")
                             .arg(report.value(DEVICE_ID).toUInt(), 4, 10, QLatin1Char('0'))
                             .arg(++m_last, 4, 10, QLatin1Char('0'));
    m_open += entryOf(report, name);
    return name;
}

QString Incidents::openOf(const QVariantMap& report) const
{
    const auto found = std::find_if(m_open.rbegin(), m_open.rend(), [&](const QVariant& entry) {
        return isSameDevice(entry.toMap(), report);
    });
    return found == m_open.rend() ? QString() : found->toMap().value(numberKey).toString();
}

QVariantMap Incidents::settle(const QString& name)
{
    const auto found = std::find_if(m_open.begin(), m_open.end(), [&](const QVariant& entry) {
        return entry.toMap().value(numberKey) == name;
    });
    if (found == m_open.end())
        return {};
    const QVariantMap entry = found->toMap();
    m_open.erase(found);
    return {{DEVICE_ID, entry.value(DEVICE_ID)},
            {THREAD_ID, entry.value(THREAD_ID)},
            {settledKey, name}};
}
