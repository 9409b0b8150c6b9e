// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingdescription.h"

#include "settingstable_p.h"

#include <QCoreApplication>

namespace {

QString translated(const char* text)
{
    return text ? QCoreApplication::translate("SettingDescription", text) : QString();
}

bool isOfDevice(const QString& group)
{
    return group.contains(QLatin1Char('/'));
}

} // namespace

SettingDescription SettingDescription::find(const QString& group, const QString& key)
{
    const SettingGroup asked(group);
    for (const SettingRow& row : SettingsTable::storeSettings) {
        if (!row.isCalled(key))
            continue;
        const QString own = SettingGroup(row.group).isOfService()
            ? row.group
            : SettingsTable::deviceGroup(QString::number(asked.deviceIndex()), row.group);
        if (group == own)
            return {&row, group};
    }
    return AcceptorSettings::settingDescription(group, key);
}

std::optional<int> SettingDescription::deviceOf(const QString& group)
{
    const SettingGroup asked(group);
    return asked.isOfDevice() ? std::optional<int>(asked.deviceIndex()) : std::nullopt;
}

std::optional<int> SettingDescription::device() const
{
    return m_group.contains(QLatin1Char('#')) ? std::nullopt : deviceOf(m_group);
}

SettingDescription SettingDescription::forDevice(int device) const
{
    if (!isOfDevice(m_group))
        return *this;
    return {m_row, SettingsTable::deviceGroup(QString::number(device), m_row->group)};
}

QString SettingDescription::key() const
{
    return m_row ? m_row->keys.list : QString();
}

QString SettingDescription::path() const
{
    return m_row ? m_group + QLatin1Char('/') + key() : QString();
}

QString SettingDescription::place() const
{
    if (!m_row)
        return {};
    const SettingRow& place = SettingsTable::placeOf(*m_row);
    const QString device = m_group.section(QLatin1Char('/'), 0, 0);
    const QString group = isOfDevice(m_group) ? device + QLatin1Char('/') + place.group : m_group;
    return group + QLatin1Char('/') + place.keys.list;
}

SettingDescription::Kind SettingDescription::kind() const
{
    return m_row ? m_row->values.kind : NoSetting;
}

QVariant SettingDescription::minimum() const
{
    return kind() == Number ? QVariant(m_row->values.minimum) : QVariant();
}

QVariant SettingDescription::maximum() const
{
    return kind() == Number ? QVariant(m_row->values.maximum) : QVariant();
}

QStringList SettingDescription::choices() const
{
    return kind() == Choice ? m_row->values.choices() : QStringList();
}

QVariant SettingDescription::defaultValue() const
{
    return m_row && m_row->defaultText ? QString::fromLatin1(m_row->defaultText) : QVariant();
}

QVariant SettingDescription::unsetValue() const
{
    if (!isWritten())
        return defaultValue();
    if (isOfDevice(m_group) && isRead()) {
        const AcceptorDeviceSettings unset;
        return m_row->access.value(SerialPortTexts::ListForm, &unset);
    }
    // Not what the configuration of this process has by now.
    return m_row->access.readAs(defaultValue().toString(), nullptr);
}

QString SettingDescription::label() const
{
    return m_row ? translated(m_row->label) : QString();
}

QString SettingDescription::help() const
{
    return m_row ? translated(m_row->help) : QString();
}

bool SettingDescription::isWritten() const
{
    return m_row && m_row->access.value;
}

bool SettingDescription::isRead() const
{
    return m_row && m_row->access.set;
}

bool SettingDescription::appliesTo(int model, const QString& interfaceType) const
{
    return m_row && m_row->isFor(model, interfaceType);
}

QString SettingDescription::readAs(const QString& value) const
{
    return m_row ? m_row->access.readAs(value, nullptr).toString() : QString();
}

bool SettingDescription::accepts(const QString& value) const
{
    if (!m_row)
        return false;
    bool isUnderstood = false;
    const QString read = m_row->access.readAs(value, &isUnderstood).toString();
    if (kind() == Number) {
        const qint64 number = read.toLongLong();
        return isUnderstood && number >= m_row->values.minimum && number <= m_row->values.maximum;
    }
    return isUnderstood && (kind() != Choice || choices().contains(read));
}
