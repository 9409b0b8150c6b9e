// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/servicesetting.h"

#include "acceptorsettings.h"
#include "settingsmanager.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/nearest.h"

#include <QHash>
#include <QLoggingCategory>

#include <algorithm>

namespace {

using S = AcceptorSettings;

const QString rs232 = QStringLiteral("rs232");
const QString tcp = QStringLiteral("tcp");

QVariantMap element(const QString& group, const QString& key, const QVariant& value)
{
    return {{QStringLiteral("group"), group},
            {QStringLiteral("key"), key},
            {QStringLiteral("value"), value}};
}

QString ofAnyDevice(const QString& path)
{
    return path.section(QLatin1Char('/'), 1);
}

bool isForEveryModel(const SettingDescription& setting)
{
    return setting.appliesTo(-1, rs232) || setting.appliesTo(-1, tcp);
}

// What AcceptorSettings writes, by path, after it read these elements; of its device 0 the paths
// are those of any device.
QMap<QString, QVariant> writtenAfter(const QVariantList& elements)
{
    S settings;
    settings.setList(elements);
    QMap<QString, QVariant> values;
    const QVariantList list = settings.toList();
    for (const QVariant& written : list) {
        const QVariantMap map = written.toMap();
        const QString group = map.value(QStringLiteral("group")).toString();
        const QString path = group + QLatin1Char('/') + map.value(QStringLiteral("key")).toString();
        const bool isOfDevice = group.contains(QLatin1Char('/'));
        values.insert(isOfDevice ? ofAnyDevice(path) : path, map.value(QStringLiteral("value")));
    }
    return values;
}

// What the library does not say of settings, by path without the device.
struct Facts
{
    QHash<QString, QVariant> unset; // with the type that the list has
    QHash<QString, QString> places;
};

// Which settings of a device change when this one is read, by trying it with every model.
QString findPlace(const SettingDescription& setting, const QStringList& models)
{
    const QString own = ofAnyDevice(setting.path());
    QStringList changed{own};
    for (const QString& model : models) {
        const QVariant id = element(deviceGroup(0, S::DEVICE_SECTION), S::DEVICE_ID, model);
        const QMap<QString, QVariant> before = writtenAfter({id});
        const QMap<QString, QVariant> after = writtenAfter(
            {id, element(deviceGroup(0, own.section(QLatin1Char('/'), 0, 0)), setting.key(), 1)});
        for (auto value = after.begin(); value != after.end(); ++value) {
            if (before.value(value.key()) != value.value())
                changed += value.key();
        }
    }
    return *std::min_element(changed.constBegin(), changed.constEnd());
}

Facts findFacts()
{
    Facts facts;
    const auto learn = [&facts](const QVariantList& elements) {
        const QMap<QString, QVariant> written = writtenAfter(elements);
        for (auto value = written.begin(); value != written.end(); ++value) {
            if (!facts.unset.contains(value.key()))
                facts.unset.insert(value.key(), value.value());
        }
    };
    const QString device = deviceGroup(0, S::DEVICE_SECTION);
    const QString hardware = deviceGroup(0, S::HARDWARE_SECTION);
    const QStringList models = S::settingDescription(device, S::DEVICE_ID).choices();
    learn({element(device, {}, {})}); // a device of which nothing is set
    learn({element(hardware, S::INTERFACE_TYPE, tcp)});
    for (const QString& model : models)
        learn({element(device, S::DEVICE_ID, model)});
    const QList<SettingDescription> settings = S::settingDescriptions();
    for (const SettingDescription& setting : settings) {
        if (setting.isRead() && !isForEveryModel(setting))
            facts.places.insert(ofAnyDevice(setting.path()), findPlace(setting, models));
    }
    S().setList({});
    return facts;
}

const Facts& facts()
{
    static const Facts found = findFacts();
    return found;
}

// The default of a setting that only the service reads; invalid without one.
QVariant storedDefault(const QString& group, const QString& key)
{
    QLoggingCategory* const log = QLoggingCategory::defaultCategory();
    const bool logged = log->isCriticalEnabled();
    log->setEnabled(QtCriticalMsg, false); // what is not known is no fault here
    acceptorSettings::SettingsManager store;
    const QVariant value = store.getDefault(group, key);
    log->setEnabled(QtCriticalMsg, logged);
    return value.userType() == QMetaType::QString ? value : QVariant();
}

} // namespace

QString deviceGroup(int device, const QString& subgroup)
{
    const QString name = S::DEVICE + QString::number(device);
    return subgroup.isEmpty() ? name : name + QLatin1Char('/') + subgroup;
}

std::optional<int> deviceOfGroup(const QString& group)
{
    const QString name = group.section(QLatin1Char('/'), 0, 0) + QLatin1Char('/');
    const SettingDescription id = S::settingDescription(name + S::DEVICE_SECTION, S::DEVICE_ID);
    if (!id.isValid())
        return {};
    return id.group().section(QLatin1Char('/'), 0, 0).mid(S::DEVICE.size()).toInt();
}

ServiceSetting::ServiceSetting(const SettingDescription& description)
    : m_group(description.group())
    , m_key(description.key())
    , m_device(deviceOfGroup(m_group))
    , m_description(description)
{
}

ServiceSetting ServiceSetting::find(const QString& group, const QString& key)
{
    const SettingDescription description = S::settingDescription(group, key);
    ServiceSetting setting = description.isValid() ? ServiceSetting(description) : ServiceSetting();
    const std::optional<int> device = deviceOfGroup(group);
    const QString subgroup = group.section(QLatin1Char('/'), 1, 1);
    const bool isRead = device ? group == deviceGroup(*device, subgroup) && !subgroup.isEmpty()
                               : group == S::SERVICE_SECTION;
    if (!isRead || setting.m_group == group)
        return setting;
    const QVariant value = storedDefault(device ? subgroup : group, key);
    if (value.isValid()) {
        setting.m_group = group;
        setting.m_key = key;
        setting.m_device = device;
        setting.m_storedDefault = value;
    }
    return setting;
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

QList<ServiceSetting> ServiceSetting::ofDevice(int device, int model, const QString& interfaceType)
{
    QList<ServiceSetting> settings;
    const QList<SettingDescription> descriptions = S::settingDescriptions();
    for (const SettingDescription& row : descriptions) {
        const QString subgroup = row.group().section(QLatin1Char('/'), 1);
        if (!subgroup.isEmpty() && row.appliesTo(model, interfaceType))
            settings += find(deviceGroup(device, subgroup), row.key());
    }
    return settings;
}

QList<ServiceSetting> ServiceSetting::ofService()
{
    QList<ServiceSetting> settings;
    const QList<SettingDescription> descriptions = S::settingDescriptions();
    for (const SettingDescription& row : descriptions) {
        if (!row.group().contains(QLatin1Char('/')))
            settings += ServiceSetting(row);
    }
    return settings;
}

QString ServiceSetting::nearestKnown(const QString& path)
{
    const QString device = QString::number(deviceOfGroup(path).value_or(0));
    QStringList paths;
    const QList<SettingDescription> descriptions = S::settingDescriptions();
    for (const SettingDescription& row : descriptions)
        paths += row.path().replace(QLatin1Char('#'), device);
    return ::nearestKnown(path, paths);
}

bool ServiceSetting::isGroupKnown(const QString& group)
{
    const std::optional<int> device = deviceOfGroup(group);
    const QList<SettingDescription> descriptions = S::settingDescriptions();
    return std::any_of(descriptions.begin(), descriptions.end(), [&](const auto& row) {
        return group == (device ? deviceGroup(*device, ofAnyDevice(row.group())) : row.group());
    });
}

QString ServiceSetting::place() const
{
    if (!m_device || !m_description.isValid())
        return path();
    const QString own = ofAnyDevice(m_description.path());
    return deviceGroup(*m_device, facts().places.value(own, own));
}

bool ServiceSetting::isOfProtocol() const
{
    return m_description.isValid() && !isForEveryModel(m_description);
}

bool ServiceSetting::isFor(int model, const QString& interfaceType) const
{
    return isOfServiceAlone() || m_description.appliesTo(model, interfaceType);
}

QVariant ServiceSetting::defaultValue() const
{
    return isOfServiceAlone() ? m_storedDefault : m_description.defaultValue();
}

QString ServiceSetting::unsetValue() const
{
    if (!m_device || isOfServiceAlone())
        return defaultValue().toString();
    return facts().unset.value(ofAnyDevice(path())).toString();
}

QString ServiceSetting::readAs(const QString& value) const
{
    return m_description.isValid() ? m_description.readAs(value) : value;
}

bool ServiceSetting::accepts(const QString& value) const
{
    return !m_description.isValid() || m_description.accepts(value);
}

JsonText ServiceSetting::listValue(const QString& text) const
{
    const int type = facts().unset.value(m_device ? ofAnyDevice(path()) : path()).userType();
    const qint64 number = text.toLongLong();
    if ((type == QMetaType::Int || type == QMetaType::LongLong) && QString::number(number) == text)
        return number;
    if (type == QMetaType::Bool
        && (text == QLatin1String("true") || text == QLatin1String("false")))
        return text == QLatin1String("true");
    return text;
}
