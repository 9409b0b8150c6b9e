// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaProperty>
#include <QVariant>

/// Conversions with the results of Qt 5.15 whichever Qt the library is built with: what a value
/// from outside means is part of the exchange formats. Qt 6 converts more types, rounds negative
/// halves away from zero, writes some reals differently and trims fewer spaces from numbers. What
/// reals beyond 64 bits become Qt 5 leaves to the processor: here it is the same on all of them.
namespace Variants {

bool toBool(const QVariant& value);
int toInt(const QVariant& value);
qint64 toLongLong(const QVariant& value);
quint64 toULongLong(const QVariant& value);
bool write(const QMetaProperty& property, QObject* object, const QVariant& value);

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

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

#else

QString toString(const QVariant& value);
QVariantList toList(const QVariant& value);
QVariantMap toMap(const QVariant& value);
bool isNull(const QVariant& value);
QString number(const QString& text);

#endif

} // namespace Variants
