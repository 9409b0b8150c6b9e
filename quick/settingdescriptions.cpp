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

} // namespace

SettingDescriptions::SettingDescriptions(QObject* parent)
    : RowModel(
        {"group", "key", "label", "help", "kind", "minimum", "maximum", "choices", "defaultValue"},
        parent)
{
    list();
}

void SettingDescriptions::list()
{
    QVector<Row> rows;
    const QList<SettingDescription> settings = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& setting : settings) {
        const QString group = setting.forDevice(m_device).group();
        const bool isOfDevice = group != setting.group();
        if (isOfDevice != (m_device >= 0) || !setting.appliesTo(m_model, m_interfaceType))
            continue;
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
