// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingdescription.h"

#include "settingstable_p.h"

#include <QCoreApplication>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("SettingDescription", text);
}

} // namespace

QString SettingDescription::key() const
{
    return m_row ? m_row->keys.list : QString();
}

QString SettingDescription::path() const
{
    return m_row ? m_group + QLatin1Char('/') + key() : QString();
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

QString SettingDescription::label() const
{
    return m_row ? translated(m_row->label) : QString();
}

QString SettingDescription::help() const
{
    return m_row ? translated(m_row->help) : QString();
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
    return m_row ? m_row->access.readAs(value, nullptr) : QString();
}

bool SettingDescription::accepts(const QString& value) const
{
    if (!m_row)
        return false;
    bool isUnderstood = false;
    const QString read = m_row->access.readAs(value, &isUnderstood);
    if (kind() == Number) {
        const qint64 number = read.toLongLong();
        return isUnderstood && number >= m_row->values.minimum && number <= m_row->values.maximum;
    }
    return isUnderstood && (kind() != Choice || choices().contains(read));
}
