// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "variants_p.h"

#include <QBitArray>
#include <QCborArray>
#include <QCborMap>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLine>
#include <QLocale>
#include <QRect>
#include <QUuid>

#include <algorithm>
#include <cmath>

// Built with Qt 6 only: the header does what Qt 5 has of its own.

namespace {

constexpr double smallestInteger = -9223372036854775808.0;

bool isReal(const QVariant& value)
{
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

bool isEnumeration(const QVariant& value)
{
    return value.metaType().flags().testFlag(QMetaType::IsEnumeration);
}

// A value that Qt 6 makes the whole number of which Qt 5 makes of the given one.
QVariant wholeNumber(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return Variants::number(value.toString());
    if (value.typeId() == QMetaType::QJsonValue && value.toJsonValue().isDouble()) {
        const double number = std::trunc(value.toJsonValue().toDouble());
        return std::abs(number) < -smallestInteger ? QVariant(qint64(number)) : value;
    }
    if (!isReal(value) || value.toDouble() >= 0)
        return value;
    // Halves are rounded upwards; what is no number or too small is 0.
    const double below = std::floor(value.toDouble());
    const double rounded = value.toDouble() - below < 0.5 ? below : below + 1;
    return rounded >= smallestInteger ? qint64(rounded) : qint64(0);
}

// As few digits as give the number back, with an exponent only when that makes the text shorter; Qt
// 5 counts one digit fewer in the exponent than it writes.
QString realText(double number)
{
    const QString scientific = QString::number(number, 'e', QLocale::FloatingPointShortest);
    const auto exponentAt = scientific.indexOf(QLatin1Char('e'));
    if (exponentAt < 0)
        return scientific; // not finite
    const QString digits =
        scientific.left(exponentAt).remove(QLatin1Char('-')).remove(QLatin1Char('.'));
    const int point = scientific.mid(exponentAt + 1).toInt() + 1;
    qsizetype longest = 6;
    if (point > 0)
        longest = digits.size() + (point > 100 ? 6 : 5) + (digits.size() > point ? 1 : 0);
    if (point != digits.size() && (point <= -4 || point > longest))
        return scientific;
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

template <typename... Types>
bool isOneOf(const QVariant& value)
{
    return ((value.metaType() == QMetaType::fromType<Types>()) || ...);
}

template <typename... Types>
bool holdsNull(const QVariant& value)
{
    return ((isOneOf<Types>(value) && static_cast<const Types*>(value.constData())->isNull())
            || ...);
}

} // namespace

bool Variants::toBool(const QVariant& value)
{
    return !isEnumeration(value) && (isReal(value) ? wholeNumber(value) : value).toBool();
}

int Variants::toInt(const QVariant& value)
{
    return wholeNumber(value).toInt();
}

quint64 Variants::toULongLong(const QVariant& value)
{
    return wholeNumber(value).toULongLong();
}

QString Variants::toString(const QVariant& value)
{
    if (isReal(value))
        return realText(value.toDouble());
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromUtf8(value.toByteArray().constData()); // up to the first NUL
    return value.toString();
}

QVariantList Variants::toList(const QVariant& value)
{
    return isOneOf<QVariantList, QStringList, QJsonValue, QJsonArray, QJsonDocument, QCborValue,
                   QCborArray>(value)
        ? value.toList()
        : QVariantList();
}

QVariantMap Variants::toMap(const QVariant& value)
{
    return isOneOf<QVariantMap, QVariantHash, QJsonValue, QJsonObject, QJsonDocument, QCborValue,
                   QCborMap>(value)
        ? value.toMap()
        : QVariantMap();
}

bool Variants::isNull(const QVariant& value)
{
    return value.isNull()
        || holdsNull<QString, QChar, QByteArray, QBitArray, QDate, QTime, QDateTime, QUuid, QSize,
                     QSizeF, QPoint, QPointF, QRect, QRectF, QLine, QLineF, QJsonValue,
                     QJsonDocument, QCborValue>(value);
}

QString Variants::number(const QString& text)
{
    const auto isPlain = [](QChar c) { return c.unicode() > 0 && c.unicode() < 0x80; };
    if (std::all_of(text.begin(), text.end(), isPlain))
        return text;
    const QString trimmed = text.trimmed(); // of every Unicode space
    return trimmed.contains(QChar(0)) ? QString()
                                      : QString(trimmed).replace(QChar(0x2212), QLatin1Char('-'));
}

bool Variants::write(const QMetaProperty& property, QObject* object, const QVariant& value)
{
    const bool textDiffers = isReal(value) || value.typeId() == QMetaType::QByteArray;
    switch (property.typeId()) {
    case QMetaType::Bool:
        if (isEnumeration(value) || isOneOf<uchar, long, ulong>(value))
            return false;
        return property.write(object, isReal(value) ? wholeNumber(value) : value);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return property.write(object, wholeNumber(value));
    case QMetaType::QString:
        return !isOneOf<uchar, long, ulong>(value)
            && property.write(object, textDiffers ? Variants::toString(value) : value);
    default:
        return property.write(object, value);
    }
}
