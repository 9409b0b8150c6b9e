// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/logtime.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <QDateTime>

#include <cmath>

namespace {

// Where they begin or end in yyyy-MM-ddThh:mm:ss.zzz
constexpr int timeOfDay = 11;
constexpr int minuteOfHour = 13;
constexpr int secondsEnd = 19;

int twoDigits(const QString& text, int at)
{
    return (text.at(at).unicode() - u'0') * 10 + text.at(at + 1).unicode() - u'0';
}

// The form that services write, on a day that every month has. Qt decides on every other, and takes
// ten times as long.
bool isPlain(const QString& text)
{
    const QLatin1String form("dddd-dd-ddTdd:dd:dd.ddd");
    const int size = int(text.size()) - (text.endsWith(QLatin1Char('Z')) ? 1 : 0);
    if (size != 19 && size != 23)
        return false;
    for (int i = 0; i < size; ++i) {
        const QChar c = text.at(i);
        if (form.at(i) == QLatin1Char('d') ? c < QLatin1Char('0') || c > QLatin1Char('9')
                                           : c != form.at(i))
            return false;
    }
    const int month = twoDigits(text, 5);
    const int day = twoDigits(text, 8);
    return month >= 1 && month <= 12 && day >= 1 && day <= 28 && twoDigits(text, 11) < 24
        && twoDigits(text, 14) < 60 && twoDigits(text, 17) < 60;
}

bool isTime(const QString& text)
{
    return isPlain(text)
        || (text.size() > timeOfDay && QDateTime::fromString(text, Qt::ISODate).isValid());
}

} // namespace

LogTime::LogTime(const QVariant& value)
{
    // The years that an ISO 8601 text can say: 1 to 9999.
    constexpr double least = -62135596800000;
    constexpr double most = 253402300799999;
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (value.userType() == QMetaType::QString && isTime(value.toString())
        && !value.toString().startsWith(QLatin1String("0000"))) {
        m_text = value.toString();
    } else if (value.userType() != QMetaType::QString && value.userType() != QMetaType::Bool
               && isNumber && number >= least && number <= most && number == std::trunc(number)) {
        m_hasMilliseconds = true;
        m_milliseconds = static_cast<qint64>(number);
    } else {
        throw Fault{Diagnosis::tr(
            "expected an ISO 8601 time or milliseconds since 1970, in a year from 1 to 9999")};
    }
}

LogTime LogTime::unknownAfter(const LogTime& before)
{
    const std::optional<qint64> moment = before.latestMoment();
    LogTime time;
    time.m_isAfter = moment.has_value();
    time.m_milliseconds = moment.value_or(0);
    return time;
}

QString LogTime::iso() const
{
    if (!m_hasMilliseconds)
        return m_text;
    return QDateTime::fromMSecsSinceEpoch(m_milliseconds, Qt::UTC).toString(Qt::ISODateWithMs);
}

QDateTime LogTime::toDateTime() const
{
    return m_hasMilliseconds ? QDateTime::fromMSecsSinceEpoch(m_milliseconds, Qt::UTC)
                             : QDateTime::fromString(m_text, Qt::ISODateWithMs);
}

std::optional<qint64> LogTime::moment() const
{
    if (m_hasMilliseconds)
        return m_milliseconds;
    if (m_text.isEmpty())
        return {};
    // Times of a log mostly share the hour with the one before: what is new of it is arithmetic.
    static thread_local QString hour;
    static thread_local qint64 hourBegins = 0;
    if (!isPlain(m_text))
        return toDateTime().toMSecsSinceEpoch();
    const bool isUtc = m_text.endsWith(QLatin1Char('Z'));
    const int size = int(m_text.size()) - (isUtc ? 1 : 0);
    const QString ofThis =
        m_text.left(minuteOfHour) + (isUtc ? QLatin1Char('Z') : QLatin1Char(' '));
    if (ofThis != hour) {
        hour = ofThis;
        hourBegins = QDateTime::fromString(m_text.left(minuteOfHour) + QLatin1String(":00:00")
                                               + (isUtc ? QLatin1String("Z") : QLatin1String()),
                                           Qt::ISODate)
                         .toMSecsSinceEpoch();
    }
    const int fraction = size > secondsEnd ? m_text.mid(secondsEnd + 1, 3).toInt() : 0;
    const qint64 seconds = twoDigits(m_text, 14) * 60 + twoDigits(m_text, 17);
    return hourBegins + seconds * 1000 + fraction;
}

std::optional<qint64> LogTime::latestMoment() const
{
    return m_isAfter ? m_milliseconds : moment();
}

LogTime LogTime::utc() const
{
    if (!isKnown())
        return *this;
    LogTime time;
    time.m_hasMilliseconds = true;
    time.m_milliseconds = moment().value_or(0);
    return time;
}

QString LogTime::clock() const
{
    const QString text = iso();
    const QString time = text.mid(timeOfDay, 8);
    return text.endsWith(QLatin1Char('Z')) ? time + QLatin1String(" UTC") : time;
}

std::optional<qint64> LogTime::wallClock() const
{
    if (m_hasMilliseconds)
        return m_milliseconds;
    const QDateTime shown = QDateTime::fromString(m_text, Qt::ISODateWithMs);
    if (!shown.isValid())
        return {};
    return QDateTime(shown.date(), shown.time(), Qt::UTC).toMSecsSinceEpoch();
}
