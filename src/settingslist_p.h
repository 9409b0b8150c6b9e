// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

/// An element of the settings list form: a map with exactly these keys.
namespace SettingsList {

inline const QString groupKey = QStringLiteral("group");
inline const QString nameKey = QStringLiteral("key");
inline const QString valueKey = QStringLiteral("value");

inline QVariantMap element(const QString& group, const QString& name, const QVariant& value)
{
    QVariantMap map;
    // In ascending order, which is the fastest way to fill a map.
    map.insert(map.cend(), groupKey, group);
    map.insert(map.cend(), nameKey, name);
    map.insert(map.cend(), valueKey, value);
    return map;
}

} // namespace SettingsList
