// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

/// An element of the settings list form: a map with exactly these keys.
namespace SettingElement {

inline const QString groupKey = QStringLiteral("group");
inline const QString nameKey = QStringLiteral("key");
inline const QString valueKey = QStringLiteral("value");

inline QVariantMap of(const QString& group, const QString& name, const QVariant& value)
{
    // A copy of a map is made faster than a map is filled; the keys are in ascending order.
    static const auto& blank = *new QVariantMap{{groupKey, {}}, {nameKey, {}}, {valueKey, {}}};
    QVariantMap map = blank;
    auto entry = map.begin();
    *entry++ = group;
    *entry++ = name;
    *entry = value;
    return map;
}

} // namespace SettingElement
