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
    : RowModel({"group", "key", "path", "label", "help", "kind", "minimum", "maximum", "choices",
                "defaultValue", "value", "isDefault", "valid"},
               parent)
    , m_language([this] { list(); })
{
    list();
}

void SettingDescriptions::list()
{
    QVector<Row> rows;
    const QList<SettingDescription> settings = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& setting : settings) {
        const SettingDescription own = setting.forDevice(m_device);
        const bool isOfDevice = own.group() != setting.group();
        if (isOfDevice != (m_device >= 0) || !setting.appliesTo(m_model, m_interfaceType))
            continue;
        const QVariant defaultValue = own.defaultValue();
        const QString value = m_values.value(own.path(), defaultValue).toString();
        const bool isDefault = !m_values.contains(own.path()) || value == defaultValue;
        rows += Row{setting.path(),
                    {own.group(), own.key(), own.path(), own.label(), own.help(),
                     kindName(own.kind()), own.minimum(), own.maximum(), own.choices(),
                     defaultValue, value, isDefault, own.accepts(value)}};
    }
    setRows(rows);
}

void SettingDescriptions::setValue(const QString& group, const QString& key, const QString& text)
{
    const SettingDescription setting = AcceptorSettings::settingDescription(group, key);
    QVariantMap values = m_values;
    values.insert(setting.path(), text);
    if (!setting.isValid() || values == m_values)
        return;
    setValues(values);
    Q_EMIT valueEdited(setting.group(), setting.key(), text);
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
