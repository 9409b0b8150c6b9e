// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/servicesetting.h"

#include "acceptorsettings.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/nearest.h"

#include <algorithm>

QString deviceGroup(int device, const QString& subgroup)
{
    const QString name = AcceptorSettings::DEVICE + QString::number(device);
    return subgroup.isEmpty() ? name : name + QLatin1Char('/') + subgroup;
}

std::optional<JsonText> jsonOfType(int type, const QString& text)
{
    const qint64 number = text.toLongLong();
    const bool isTrue = text == QLatin1String("true");
    switch (type) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return QString::number(number) == text ? std::optional<JsonText>(number) : std::nullopt;
    case QMetaType::Bool:
        return isTrue || text == QLatin1String("false") ? std::optional<JsonText>(isTrue)
                                                        : std::nullopt;
    case QMetaType::QString:
        return text;
    default:
        return {};
    }
}

ServiceSetting ServiceSetting::find(const QString& group, const QString& key)
{
    return ServiceSetting(SettingDescription::find(group, key));
}

ServiceSetting ServiceSetting::require(const QString& path)
{
    const auto slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash < 1)
        throw Fault{Diagnosis::tr("\"%1\": expected GROUP/KEY").arg(path)};
    const ServiceSetting setting = find(path.left(slash), path.mid(slash + 1));
    if (!setting.isValid())
        throw Fault{Diagnosis::tr("unknown setting \"%1\"").arg(path) + nearestKnown(path)};
    return setting;
}

QList<ServiceSetting> ServiceSetting::listed(std::optional<int> device)
{
    QList<ServiceSetting> settings;
    const QList<SettingDescription> descriptions = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& row : descriptions) {
        const ServiceSetting setting(row.forDevice(device.value_or(0)));
        if (setting.device().has_value() == device.has_value())
            settings += setting;
    }
    return settings;
}

QList<ServiceSetting> ServiceSetting::ofDevice(int device, int model, const QString& interfaceType)
{
    QList<ServiceSetting> settings = listed(device);
    settings.erase(std::remove_if(settings.begin(), settings.end(),
                                  [&](const ServiceSetting& setting) {
                                      return !setting.appliesTo(model, interfaceType);
                                  }),
                   settings.end());
    return settings;
}

QString ServiceSetting::nearestKnown(const QString& path)
{
    QStringList paths;
    for (const ServiceSetting& setting : listed({}) + listed(deviceOf(path).value_or(0)))
        paths += setting.path();
    return ::nearestKnown(path, paths);
}

bool ServiceSetting::isGroupKnown(const QString& group)
{
    const std::optional<int> device = deviceOf(group);
    if (device && group == deviceGroup(*device))
        return true; // the protocol parameters are read without a sub-group, too
    const QList<ServiceSetting> settings = listed(device);
    return std::any_of(settings.begin(), settings.end(), [&group](const ServiceSetting& setting) {
        return setting.group() == group;
    });
}

bool ServiceSetting::isOfProtocol() const
{
    return !appliesTo(-1, QStringLiteral("rs232")) && !appliesTo(-1, QStringLiteral("tcp"));
}

JsonText ServiceSetting::listValue(const QString& text) const
{
    return jsonOfType(unsetValue().userType(), text).value_or(text);
}
