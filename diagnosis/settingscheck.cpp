// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingscheck.h"

#include "acceptorsettings.h"
#include "knownsettings.h"

#include <QHash>
#include <QJsonObject>
#include <QSet>

namespace {

class Check
{
public:
    explicit Check(const ArrayFile& file)
        : m_file(file)
    {
        // The last count in the list is the one that stays.
        AcceptorSettings().setList(file.elements().toVariantList());
        m_deviceCount = AcceptorSettings::deviceCount();
    }

    QStringList findings()
    {
        const QJsonArray elements = m_file.elements();
        for (m_index = 0; m_index < elements.size(); ++m_index)
            checkElement(elements.at(m_index));
        if (!m_elementOfPath.contains(QStringLiteral("service/devices_count"))) {
            m_findings += QStringLiteral("%1: no service/devices_count: the count reads as 0")
                              .arg(m_file.name());
        }
        return m_findings;
    }

private:
    void report(const QString& finding)
    {
        m_findings += QStringLiteral("%1: element %2: %3")
                          .arg(m_file.place(m_index), QString::number(m_index + 1), finding);
    }

    void checkElement(const QJsonValue& element)
    {
        const QVariantMap setting = element.toObject().toVariantMap();
        if (!setting.contains(QStringLiteral("group")))
            return report(QStringLiteral("is skipped: no \"group\""));
        const QString group = setting.value(QStringLiteral("group")).toString();
        const QString key = setting.value(QStringLiteral("key")).toString();
        if (const std::optional<DeviceGroup> device = deviceGroup(group))
            checkDevice(group, *device);
        const QString path = group + QLatin1Char('/') + key;
        const std::optional<KnownSetting> known = knownSetting(group, key);
        if (!known) {
            return report(QStringLiteral("%1 is ignored (nearest known: %2)")
                              .arg(path, nearestKnownPath(path)));
        }
        checkValue(*known, path, setting.value(QStringLiteral("value")));
        if (m_elementOfPath.contains(known->path)) {
            report(QStringLiteral("%1 was set by element %2 already")
                       .arg(path, QString::number(m_elementOfPath.value(known->path))));
        }
        m_elementOfPath.insert(known->path, m_index + 1);
    }

    // Once for each device: its further elements would only repeat it.
    void checkDevice(const QString& group, const DeviceGroup& device)
    {
        if (m_devices.contains(device.device) && device.hasNumber)
            return;
        m_devices.insert(device.device);
        if (!device.hasNumber)
            report(QStringLiteral("%1 has no device number and means device 0").arg(group));
        if (device.device < 0 || device.device >= m_deviceCount) {
            report(QStringLiteral("device %1 is not below the device count of %2")
                       .arg(QString::number(device.device), QString::number(m_deviceCount)));
        }
    }

    void checkValue(const KnownSetting& known, const QString& path, const QVariant& value)
    {
        const QString text = value.toString();
        QString complaint = known.complaint(text);
        if (complaint.isEmpty() && (value.isNull() || !value.canConvert<QString>()))
            complaint = QStringLiteral("reads as an empty text");
        if (!complaint.isEmpty())
            report(QStringLiteral("%1 = %2 %3").arg(path, text, complaint));
    }

    const ArrayFile& m_file;
    int m_deviceCount;
    int m_index = 0;
    QStringList m_findings;
    QSet<int> m_devices;
    QHash<QString, int> m_elementOfPath;
};

} // namespace

QStringList checkSettings(const ArrayFile& file)
{
    return Check(file).findings();
}
