// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "levelreader.h"

#include "forecast.h"
#include "historydatabase.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {


// Of a device, and perhaps one of its hours.
QString keyOf(const QString& kiosk, int device, int thread, qint64 time = 0)
{
    return QStringLiteral("%1\n%2\n%3\n%4").arg(kiosk).arg(device).arg(thread).arg(time);
}

} // namespace

/// One channel's pieces of one kind.
struct LevelReader::Series
{
    History::Due due;
    int billType;
    std::vector<std::pair<qint64, qint64>> counts; // hours and the last count in each
};

LevelReader::LevelReader(HistoryDatabase& database, qint64 now)
    : m_database(database)
    , m_now(now)
    , m_begin(now - Forecast::mostDays * Forecast::hoursOfDay * anHour)
{
}

std::vector<History::Due> LevelReader::due()
{
    readCapacities();
    readInserted();
    QSqlQuery& row = m_database.run(
        QStringLiteral("SELECT kiosk, device, thread, channel, denomination, currency, bill_type,"
                       " hour, count FROM levels WHERE hour > ? AND hour <= ?"
                       " ORDER BY kiosk, device, thread, channel, denomination, currency,"
                       " bill_type, hour"),
        {m_begin - anHour, m_now});
    std::optional<Series> series;
    while (row.next()) {
        const QString kiosk = row.value(0).toString();
        const int device = row.value(1).toInt();
        const int thread = row.value(2).toInt();
        const int channel = row.value(3).toInt();
        const int denomination = row.value(4).toInt();
        const QString currency = row.value(5).toString();
        const int billType = row.value(6).toInt();
        if (!series || series->billType != billType
            || std::tie(series->due.kiosk, series->due.device, series->due.thread,
                        series->due.channel, series->due.denomination, series->due.currency)
                != std::tie(kiosk, device, thread, channel, denomination, currency)) {
            if (series)
                add(*series);
            series.emplace();
            series->billType = billType;
            series->due.kiosk = kiosk;
            series->due.device = device;
            series->due.thread = thread;
            series->due.what = channel == theCassette ? History::Due::Full : History::Due::Empty;
            series->due.channel = channel;
            series->due.denomination = denomination;
            series->due.currency = currency;
        }
        series->counts.emplace_back(row.value(7).toLongLong(), row.value(8).toLongLong());
    }
    row.finish();
    if (series)
        add(*series);
    std::stable_sort(m_due.begin(), m_due.end(), [](const auto& one, const auto& other) {
        constexpr qint64 never = std::numeric_limits<qint64>::max();
        return one.earliest.value_or(never) < other.earliest.value_or(never);
    });
    return std::move(m_due);
}

// Of a cassette the least that it held when it was full: it was not always emptied where it was
// taken out.
void LevelReader::readCapacities()
{
    QSqlQuery& row = m_database.run(
        QStringLiteral("SELECT kiosk, device, thread, notes FROM full_cassettes ORDER BY time"));
    while (row.next()) {
        m_capacities.insert(
            keyOf(row.value(0).toString(), row.value(1).toInt(), row.value(2).toInt()),
            row.value(3).toLongLong());
    }
    row.finish();
}

void LevelReader::readInserted()
{
    QSqlQuery& row =
        m_database.run(QStringLiteral("SELECT kiosk, device, thread, hour, inserted FROM hours"
                                      " WHERE hour > ? AND inserted > 0"),
                       {m_begin - anHour});
    while (row.next()) {
        m_inserted.insert(keyOf(row.value(0).toString(), row.value(1).toInt(), row.value(2).toInt(),
                                row.value(3).toLongLong()),
                          row.value(4).toLongLong());
    }
    row.finish();
}

void LevelReader::add(Series& series)
{
    History::Due& due = series.due;
    const bool isCassette = due.what == History::Due::Full;
    due.level = series.counts.back().second;
    const qint64 known = m_now - series.counts.front().first;
    const auto days = std::size_t(
        std::clamp<qint64>(known / (Forecast::hoursOfDay * anHour), 0, Forecast::mostDays));
    std::vector<double> used(days * Forecast::hoursOfDay, 0.);
    for (std::size_t i = 1; i < series.counts.size(); ++i) {
        const auto [time, count] = series.counts[i];
        const qint64 rise = count - series.counts[i - 1].second;
        // A cassette that has less than before was emptied. Of what a channel has more, customers
        // inserted at most what the device counted; the rest was filled in.
        const qint64 inserted = rise <= 0 || isCassette
            ? 0
            : m_inserted.value(keyOf(due.kiosk, due.device, due.thread, time));
        const qint64 change =
            isCassette ? (rise < 0 ? count : rise) : -std::min(rise, rise < 0 ? rise : inserted);
        const auto place = std::size_t(std::max<qint64>(m_now - time - 1, 0) / anHour);
        if (place < used.size())
            used[place] += double(change);
    }
    const Forecast forecast(used);
    due.perDay = forecast.perDay();
    const auto capacity = m_capacities.constFind(keyOf(due.kiosk, due.device, due.thread));
    if (isCassette && capacity != m_capacities.constEnd())
        due.capacity = *capacity;
    qint64 left = due.level;
    if (isCassette)
        left = due.capacity.value_or(0) - due.level;
    if (isCassette && !due.capacity) {
        due.cannotSay = Diagnosis::tr("The cassette was not full yet: what it holds is not known.");
    } else if (left > 0 && forecast.days() < Forecast::fewestDays) {
        due.cannotSay = Diagnosis::tr("Its level is known for less than three days.");
    } else if (left > 0 && due.perDay <= 0) {
        due.cannotSay = isCassette
            ? Diagnosis::tr("Nothing was inserted in the last two weeks.")
            : Diagnosis::tr("Its level has not fallen in the last two weeks.");
    } else if (const auto range = forecast.usedUp(left)) {
        due.earliest = m_now + qint64(std::llround(range->earliest * double(anHour)));
        due.latest = m_now + qint64(std::llround(range->latest * double(anHour)));
    } else {
        due.cannotSay = Diagnosis::tr("The days differ too much.");
    }
    m_due.push_back(due);
}
