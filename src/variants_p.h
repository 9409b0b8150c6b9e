// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaProperty>
#include <QVariant>

/// Conversions with the results of Qt 5.15 whichever Qt the library is built with: what a value
/// from outside means is part of the exchange formats. Qt 6 converts more types, rounds negative
/// halves away from zero, writes some reals differently and trims fewer spaces from numbers.
namespace Variants {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

inline bool toBool(const QVariant& value)
{
    return value.toBool();
}
inline int toInt(const QVariant& value)
{
    return value.toInt();
}
inline quint64 toULongLong(const QVariant& value)
{
    return value.toULongLong();
}
inline QString toString(const QVariant& value)
{
    return value.toString();
}
inline QVariantList toList(const QVariant& value)
{
    return value.toList();
}
inline QVariantMap toMap(const QVariant& value)
{
    return value.toMap();
}
inline bool isNull(const QVariant& value)
{
    return value.isNull();
}

/// The text of a number for QString::toInt() and its like.
inline const QString& number(const QString& text)
{
    return text;
}

inline bool write(const QMetaProperty& property, QObject* object, const QVariant& value)
{
    return property.write(object, value);
}

#else

bool toBool(const QVariant& value);
int toInt(const QVariant& value);
quint64 toULongLong(const QVariant& value);
QString toString(const QVariant& value);
QVariantList toList(const QVariant& value);
QVariantMap toMap(const QVariant& value);
bool isNull(const QVariant& value);
QString number(const QString& text);
bool write(const QMetaProperty& property, QObject* object, const QVariant& value);

#endif

} // namespace Variants
