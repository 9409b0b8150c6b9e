// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingdescriptions.h"

#include "acceptorsettings.h"

namespace {

QString kindName(SettingDescription::Kind kind)
{
    static const char* const names[] = {"",       "number",         "switch",  "text",
                                        "choice", "attemptsLimits", "routeMap"};
    return QLatin1String(names[kind]);
}

bool isOfDevice(const SettingDescription& setting)
{
    return setting.group().startsWith(QLatin1String("device#"));
}

} // namespace

SettingDescriptions::SettingDescriptions(QObject* parent)
    : RowModel(
        {"group", "key", "label", "help", "kind", "minimum", "maximum", "choices", "defaultValue"},
        parent)
{
    list();
}

void SettingDescriptions::setDevice(int device)
{
    if (device == m_device)
        return;
    m_device = device;
    list();
    Q_EMIT deviceChanged();
}

void SettingDescriptions::setModel(int model)
{
    if (model == m_model)
        return;
    m_model = model;
    list();
    Q_EMIT modelChanged();
}

void SettingDescriptions::setInterfaceType(const QString& type)
{
    if (type == m_interfaceType)
        return;
    m_interfaceType = type;
    list();
    Q_EMIT interfaceTypeChanged();
}

void SettingDescriptions::list()
{
    QVector<Row> rows;
    const QList<SettingDescription> settings = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& setting : settings) {
        if (isOfDevice(setting) != (m_device >= 0) || !setting.appliesTo(m_model, m_interfaceType))
            continue;
        QString group = setting.group();
        group.replace(QLatin1Char('#'), QString::number(m_device));
        rows +=
            Row{setting.path(),
                {group, setting.key(), setting.label(), setting.help(), kindName(setting.kind()),
                 setting.minimum(), setting.maximum(), setting.choices(), setting.defaultValue()}};
    }
    setRows(rows);
}

bool SettingDescriptions::accepts(const QString& group, const QString& key,
                                  const QString& value) const
{
    return AcceptorSettings::settingDescription(group, key).accepts(value);
}

QString SettingDescriptions::readAs(const QString& group, const QString& key,
                                    const QString& value) const
{
    return AcceptorSettings::settingDescription(group, key).readAs(value);
}
