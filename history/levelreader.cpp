// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "levelreader.h"

#include "forecast.h"
#include "historydatabase.h"
#include "historyschema.h"
#include "historytime.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <tuple>

namespace {

using Hours = std::vector<std::pair<qint64, qint64>>; // with a number each

QString keyOf(const QSqlQuery& row)
{
    return row.value(0).toString() + QLatin1Char('\n') + row.value(1).toString() + QLatin1Char('\n')
        + row.value(2).toString();
}

// Of a text of pairs, in order.
Hours hoursOf(const QString& text)
{
    Hours hours;
    const QByteArray numbers = text.toLatin1();
    const char* at = numbers.constData();
    for (char* end = nullptr;; at = end) {
        const qint64 hour = std::strtoll(at, &end, 10);
        if (end == at)
            break;
        hours.emplace_back(hour, std::strtoll(end, &end, 10));
    }
    std::sort(hours.begin(), hours.end());
    return hours;
}

} // namespace

LevelReader::LevelReader(HistoryDatabase& database, qint64 now)
    : m_database(database)
    , m_now(now)
    , m_begin(now - Forecast::mostDays * HistoryTime::day - HistoryTime::hour)
{
}

std::vector<History::Due> LevelReader::due()
{
    readDevices();
    // However much is remembered of before, only the rows of the two weeks are read.
    QSqlQuery& row = m_database.run(
        QStringLiteral("SELECT kiosk, device, thread, channel, denomination, currency, count, hour,"
                       " (SELECT %1 FROM levels WHERE levels.kiosk = channels.kiosk"
                       " AND levels.device = channels.device AND levels.thread = channels.thread"
                       " AND levels.channel = channels.channel"
                       " AND levels.denomination = channels.denomination"
                       " AND levels.currency = channels.currency"
                       " AND levels.bill_type = channels.bill_type"
                       " AND levels.hour > ? AND levels.hour <= ?),"
                       " (SELECT began FROM conditions WHERE conditions.kiosk = channels.kiosk"
                       " AND ended IS NULL AND condition = 'silent')"
                       " FROM channels WHERE hour > ? AND EXISTS (SELECT 1 FROM conditions"
                       " WHERE conditions.kiosk = channels.kiosk AND conditions.ended IS NULL)")
            .arg(m_database.pairs(QStringLiteral("levels.hour"), QStringLiteral("levels.count"))),
        {m_begin, m_now, m_begin});
    while (row.next()) {
        History::Due due;
        due.kiosk = row.value(0).toString();
        due.device = row.value(1).toInt();
        due.thread = row.value(2).toInt();
        due.channel = row.value(3).toInt();
        due.what =
            due.channel == HistorySchema::cassette ? History::Due::Full : History::Due::Empty;
        due.denomination = row.value(4).toInt();
        due.currency = row.value(5).toString();
        due.level = row.value(6).toLongLong();
        forecast(due, m_devices.value(keyOf(row)), hoursOf(row.value(8).toString()));
        // What was used since nobody knows. Of every day on which a level is told there is a row.
        const bool isSilent =
            !row.value(9).isNull() && row.value(9).toLongLong() < m_now - HistoryTime::day;
        if (isSilent || row.value(7).toLongLong() < m_now - 2 * HistoryTime::day) {
            due.earliest.reset();
            due.latest.reset();
            due.cannotSay = isSilent
                ? Diagnosis::tr("The kiosk has been silent for more than a day.")
                : Diagnosis::tr("Its level has not been told for more than a day.");
        }
        m_due.push_back(due);
    }
    row.finish();
    std::sort(m_due.begin(), m_due.end(), [](const auto& one, const auto& other) {
        constexpr qint64 never = std::numeric_limits<qint64>::max();
        return std::make_tuple(one.earliest.value_or(never), one.kiosk, one.device, one.thread,
                               one.channel, one.denomination)
            < std::make_tuple(other.earliest.value_or(never), other.kiosk, other.device,
                              other.thread, other.channel, other.denomination);
    });
    return std::move(m_due);
}

void LevelReader::readDevices()
{
    QSqlQuery& inserted = m_database.run(
        QStringLiteral("SELECT kiosk, device, thread,"
                       " (SELECT %1 FROM hours WHERE hours.kiosk = counters.kiosk"
                       " AND hours.device = counters.device AND hours.thread = counters.thread"
                       " AND hours.hour > ? AND hours.inserted > 0) FROM counters")
            .arg(m_database.pairs(QStringLiteral("hours.hour"), QStringLiteral("hours.inserted"))),
        {m_begin});
    while (inserted.next()) {
        const Hours hours = hoursOf(inserted.value(3).toString());
        if (!hours.empty()) {
            QMap<qint64, qint64>& map = m_devices[keyOf(inserted)].inserted;
            for (const auto& [hour, count] : hours)
                map.insert(hour, count);
        }
    }
    inserted.finish();
    QSqlQuery& full = m_database.run(
        QStringLiteral("SELECT kiosk, device, thread, notes FROM full_cassettes ORDER BY time"));
    while (full.next())
        m_devices[keyOf(full)].capacity = full.value(3).toLongLong();
    full.finish();
}

void LevelReader::forecast(History::Due& due, const Device& device, const Hours& counts) const
{
    const bool isCassette = due.what == History::Due::Full;
    const qint64 known = counts.empty() ? 0 : m_now - counts.front().first;
    const auto days =
        std::size_t(std::clamp<qint64>(known / HistoryTime::day, 0, Forecast::mostDays));
    std::vector<double> used(days * Forecast::hoursOfDay, 0.);
    for (std::size_t i = 1; i < counts.size(); ++i) {
        const auto [hour, count] = counts[i];
        const qint64 rise = count - counts[i - 1].second;
        const auto place = std::size_t(std::max<qint64>(m_now - hour - 1, 0) / HistoryTime::hour);
        if (place >= used.size())
            continue;
        // A cassette that has less than before was emptied. Of what a channel has more, customers
        // inserted at most what the device counted; the rest was filled in.
        const qint64 change = isCassette ? (rise < 0 ? count : rise)
            : rise < 0                   ? -rise
                                         : -std::min(rise, device.inserted.value(hour));
        used[place] += double(change);
    }
    const Forecast forecast(used);
    due.perDay = forecast.perDay();
    if (isCassette)
        due.capacity = device.capacity;
    const qint64 left = isCassette ? device.capacity.value_or(0) - due.level : due.level;
    if (isCassette && !due.capacity) {
        due.cannotSay =
            Diagnosis::tr("The cassette has not been full yet: how much it holds is not known.");
    } else if (left > 0 && forecast.days() < Forecast::fewestDays) {
        due.cannotSay = Diagnosis::tr("Its level is known for less than three days.");
    } else if (left > 0 && due.perDay <= 0) {
        due.cannotSay = isCassette
            ? Diagnosis::tr("Nothing was inserted in the last two weeks.")
            : Diagnosis::tr("Its level has not fallen in the last two weeks.");
    } else if (const auto range = forecast.usedUp(left)) {
        due.earliest = m_now + qint64(std::llround(range->earliest * double(HistoryTime::hour)));
        due.latest = m_now + qint64(std::llround(range->latest * double(HistoryTime::hour)));
    } else {
        due.cannotSay = Diagnosis::tr("The days differ too much.");
    }
}
