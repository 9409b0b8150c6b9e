// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/variants.h"

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
#include <limits>

namespace {

bool isReal(const QVariant& value)
{
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

bool isInteger(const QVariant& value)
{
    return value.userType() == QMetaType::Int || value.userType() == QMetaType::LongLong;
}

// What Qt 6 converts, and Qt 5 where there is a converter only.
bool isEnumeration([[maybe_unused]] const QVariant& value)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return false;
#else
    return value.metaType().flags().testFlag(QMetaType::IsEnumeration);
#endif
}

template <typename... Types>
bool isOneOf(const QVariant& value)
{
    return ((value.userType() == qMetaTypeId<Types>()) || ...);
}

// A real without its fraction. What does not fit becomes the least number, as most processors have
// it.
template <typename Real>
qint64 truncated(Real real)
{
    constexpr auto limit = Real(9223372036854775808.0);
    return real >= -limit && real < limit ? qint64(real) : std::numeric_limits<qint64>::min();
}

// As Qt 5 rounds: halves go upwards, and what is far below 64 bits becomes 0, as what is no number.
template <typename Real>
qint64 rounded(Real real)
{
    if (real >= 0)
        return truncated(real + Real(0.5));
    const qint64 below = truncated(real - 1);
    const qint64 above = truncated(real - Real(below) + Real(0.5));
    return qint64(quint64(below) + quint64(above)); // may wrap around
}

// A value that either Qt makes the whole number of which Qt 5 makes of the given one.
QVariant wholeNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
        return rounded(value.toDouble());
    case QMetaType::Float:
        return rounded(value.toFloat());
    case QMetaType::QJsonValue:
        return value.toJsonValue().isDouble() ? truncated(value.toJsonValue().toDouble()) : value;
    case QMetaType::QString:
        return Variants::number(value.toString());
    default:
        return value;
    }
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

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
bool holdsNull(const QVariant& value)
{
    return ((isOneOf<Types>(value) && static_cast<const Types*>(value.constData())->isNull())
            || ...);
}

#endif

} // namespace

bool Variants::toBool(const QVariant& value)
{
    if (isReal(value))
        return wholeNumber(value).toBool();
    return !isEnumeration(value) && value.toBool();
}

int Variants::toInt(const QVariant& value)
{
    return isInteger(value) ? value.toInt() : wholeNumber(value).toInt();
}

qint64 Variants::toLongLong(const QVariant& value)
{
    return wholeNumber(value).toLongLong();
}

quint64 Variants::toULongLong(const QVariant& value)
{
    return wholeNumber(value).toULongLong();
}

bool Variants::write(const QMetaProperty& property, QObject* object, const QVariant& value)
{
    const bool textDiffers = isReal(value) || value.userType() == QMetaType::QByteArray;
    if (textDiffers && value.isNull())
        return false;
    switch (property.userType()) {
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

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

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

#endif
