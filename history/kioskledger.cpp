// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kioskledger.h"

#include "historydatabase.h"
#include "historyschema.h"
#include "historytime.h"
#include "text/diagnosis.h"

#include <algorithm>

namespace {

// A state that another worker has seen arrives here within this time, by this worker's clock.
constexpr qint64 grace = 30000;

// Nobody inserts so many notes between two states: such a counter is nonsense.
constexpr qint64 mostAtOnce = 1000000000;

const QString deviceKey = QStringLiteral("kiosk, device, thread");
const QString channelKey =
    deviceKey + QStringLiteral(", channel, denomination, currency, bill_type");

qint64 hourOf(qint64 time)
{
    return time - time % HistoryTime::hour;
}

// A counter that is less than before has begun anew.
qint64 growth(qint64 before, qint64 now)
{
    const quint64 grown = now < before ? quint64(now) : quint64(now) - quint64(before);
    return grown > quint64(mostAtOnce) ? 0 : qint64(grown);
}

template <typename List, typename Device>
auto findDevice(List& list, const Device& device)
{
    return std::find_if(list.begin(), list.end(), [&](const auto& each) {
        return each.device == device.device && each.thread == device.thread;
    });
}

// Whether the level was there before, at the same count and on the same day: one row a day says
// that the channel is still there.
bool isWritten(const KioskRecord* before, const KioskRecord& now, const KioskRecord::Device& device,
               const KioskRecord::Level& level)
{
    if (!before || before->time / HistoryTime::day != now.time / HistoryTime::day)
        return false;
    const auto old = findDevice(before->devices, device);
    return old != before->devices.end()
        && std::any_of(old->levels.begin(), old->levels.end(), [&](const auto& each) {
               return each.channel == level.channel && each.denomination == level.denomination
                   && each.billType == level.billType && each.count == level.count
                   && each.currency == level.currency;
           });
}

} // namespace

// What was open is closed, or it was somebody else who did.
KioskLedger::KioskLedger()
    : m_positions(QStringLiteral("kiosks"), QStringLiteral("kiosk"),
                  QStringLiteral("changed, message"),
                  QStringLiteral("DO UPDATE SET changed = excluded.changed,"
                                 " message = excluded.message"))
    , m_conditions(QStringLiteral("conditions"), QStringLiteral("kiosk, began"),
                   QStringLiteral("ended, condition, message"),
                   QStringLiteral("DO UPDATE SET ended = excluded.ended"
                                  " WHERE conditions.ended IS NULL"))
    , m_faults(QStringLiteral("faults"), QStringLiteral("kiosk, began, device, thread, reason"),
               QStringLiteral("ended, fault, message"),
               QStringLiteral("DO UPDATE SET ended = excluded.ended WHERE faults.ended IS NULL"))
    , m_hours(QStringLiteral("hours"), deviceKey + QStringLiteral(", hour"),
              QStringLiteral("inserted, rejected, returned"),
              QStringLiteral("DO UPDATE SET inserted = hours.inserted + excluded.inserted,"
                             " rejected = hours.rejected + excluded.rejected,"
                             " returned = hours.returned + excluded.returned"))
    , m_channels(QStringLiteral("channels"), channelKey, QStringLiteral("hour, count"),
                 QStringLiteral("DO UPDATE SET hour = excluded.hour, count = excluded.count"))
    , m_levels(QStringLiteral("levels"), channelKey + QStringLiteral(", hour"),
               QStringLiteral("count"), QStringLiteral("DO UPDATE SET count = excluded.count"))
    , m_collections(QStringLiteral("collections"), deviceKey + QStringLiteral(", time"),
                    QStringLiteral("notes"), QStringLiteral("DO NOTHING"))
    , m_fullCassettes(QStringLiteral("full_cassettes"), deviceKey + QStringLiteral(", time"),
                      QStringLiteral("notes"), QStringLiteral("DO NOTHING"))
    , m_counters(QStringLiteral("counters"), deviceKey,
                 QStringLiteral("time, inserted, rejected, returned, present, stacker_full, notes"),
                 QStringLiteral("DO UPDATE SET time = excluded.time, inserted = excluded.inserted,"
                                " rejected = excluded.rejected, returned = excluded.returned,"
                                " present = excluded.present,"
                                " stacker_full = excluded.stacker_full, notes = excluded.notes"))
{
}

QSet<QString> KioskLedger::load(HistoryDatabase& database, const QSet<QString>& kiosks)
{
    QStringList unknown;
    for (const QString& kiosk : kiosks) {
        if (!m_kiosks.contains(kiosk)) {
            m_kiosks.insert(kiosk, {});
            unknown += kiosk;
        }
    }
    database.select(
        QStringLiteral("SELECT kiosk, changed, message FROM kiosks WHERE kiosk IN (%1)"), unknown,
        [&](const QSqlQuery& row) {
            m_kiosks[row.value(0).toString()].position =
                Position{row.value(1).toLongLong(), quint64(row.value(2).toLongLong())};
        });
    database.select(QStringLiteral("SELECT kiosk, began, condition FROM conditions"
                                   " WHERE ended IS NULL AND kiosk IN (%1)"),
                    unknown, [&](const QSqlQuery& row) {
                        Kiosk& kiosk = m_kiosks[row.value(0).toString()];
                        kiosk.began = row.value(1).toLongLong();
                        kiosk.condition = KioskSummary::conditionOf(row.value(2).toString());
                    });
    database.select(QStringLiteral("SELECT kiosk, device, thread, reason, began FROM faults"
                                   " WHERE ended IS NULL AND kiosk IN (%1)"),
                    unknown, [&](const QSqlQuery& row) {
                        m_kiosks[row.value(0).toString()].faults.push_back(
                            {row.value(1).toInt(), row.value(2).toInt(), row.value(3).toString(),
                             row.value(4).toLongLong()});
                    });
    database.select(
        QStringLiteral("SELECT kiosk, device, thread, time, inserted, rejected, returned,"
                       " present, stacker_full, notes FROM counters"
                       " WHERE kiosk IN (%1)"),
        unknown, [&](const QSqlQuery& row) {
            Device device{row.value(1).toInt(),
                          row.value(2).toInt(),
                          row.value(3).toLongLong(),
                          row.value(4).toLongLong(),
                          row.value(5).toLongLong(),
                          row.value(6).toLongLong(),
                          row.value(7).toBool(),
                          row.value(8).toBool(),
                          {},
                          true};
            if (!row.value(9).isNull())
                device.notes = row.value(9).toLongLong();
            m_kiosks[row.value(0).toString()].devices.push_back(device);
        });
    return {unknown.begin(), unknown.end()};
}

std::optional<KioskLedger::Position> KioskLedger::position(const QString& kiosk) const
{
    const auto known = m_kiosks.constFind(kiosk);
    return known == m_kiosks.constEnd() ? std::nullopt : known->position;
}

void KioskLedger::apply(const KioskChange& change)
{
    if (change.kind == KioskChange::Counts) {
        applyCounts(change);
        return;
    }
    Kiosk& kiosk = m_kiosks[change.kiosk];
    // Two changes have never the same time, also when the clock goes back.
    const qint64 time =
        kiosk.position ? std::max(change.time, kiosk.position->time + 1) : change.time;
    bool isNew = false;
    if (change.kind == KioskChange::Forgotten) {
        isNew = closeCondition(kiosk, change.kiosk, time);
        const KioskRecord nothing{change.kiosk, time, 0, KioskSummary::Fine, {}, {}};
        applyFaults(kiosk, nothing, time);
        kiosk.devices.clear();
        kiosk.counted.reset();
        m_forgotten.insert(change.kiosk);
    } else {
        const KioskRecord& record = *change.record;
        if (kiosk.condition != record.condition) {
            closeCondition(kiosk, change.kiosk, time);
            const auto row = m_conditions.row({change.kiosk, time});
            row[1] = QString(QLatin1String(KioskSummary::name(record.condition)));
            row[2] = qint64(change.message);
            kiosk.condition = record.condition;
            kiosk.began = time;
            isNew = true;
        }
        isNew = applyFaults(kiosk, record, time) || isNew;
        applyCounts(change);
        isNew = applyCassettes(kiosk, record, time) || isNew;
    }
    if (!isNew)
        return;
    kiosk.position = Position{time, change.message};
    const auto row = m_positions.row({change.kiosk});
    row[0] = time;
    row[1] = qint64(change.message);
}

bool KioskLedger::closeCondition(Kiosk& kiosk, const QString& name, qint64 time)
{
    if (!kiosk.condition)
        return false;
    const auto row = m_conditions.row({name, kiosk.began});
    row[0] = time;
    if (row[1].isNull()) {
        row[1] = QString(QLatin1String(KioskSummary::name(*kiosk.condition)));
        row[2] = 0;
    }
    kiosk.condition.reset();
    return true;
}

bool KioskLedger::applyFaults(Kiosk& kiosk, const KioskRecord& record, qint64 time)
{
    const auto isSame = [](const auto& one, const auto& other) {
        return one.device == other.device && one.thread == other.thread
            && one.reason == other.reason;
    };
    bool isNew = false;
    const auto ends = [&](const Fault& open) {
        if (std::any_of(record.faults.begin(), record.faults.end(),
                        [&](const KioskFault& fault) { return isSame(open, fault); })) {
            return false;
        }
        const auto row =
            m_faults.row({record.kiosk, open.began, open.device, open.thread, open.reason});
        row[0] = time;
        if (row[1].isNull()) {
            row[1] = QStringLiteral("");
            row[2] = 0;
        }
        return isNew = true;
    };
    kiosk.faults.erase(std::remove_if(kiosk.faults.begin(), kiosk.faults.end(), ends),
                       kiosk.faults.end());
    for (const KioskFault& fault : record.faults) {
        if (std::any_of(kiosk.faults.begin(), kiosk.faults.end(),
                        [&](const Fault& open) { return isSame(open, fault); })) {
            continue;
        }
        kiosk.faults.push_back({fault.device, fault.thread, fault.reason, time});
        const auto row =
            m_faults.row({record.kiosk, time, fault.device, fault.thread, fault.reason});
        row[1] = fault.text.isNull() ? QStringLiteral("") : fault.text;
        row[2] = qint64(record.message);
        isNew = true;
    }
    return isNew;
}

bool KioskLedger::applyCassettes(Kiosk& kiosk, const KioskRecord& record, qint64 time)
{
    bool isNew = false;
    for (const KioskRecord::Device& device : record.devices) {
        const auto known = findDevice(kiosk.devices, device);
        if (known == kiosk.devices.end()
            || (known->isStackerPresent == device.isStackerPresent
                && known->isStackerFull == device.isStackerFull)) {
            continue;
        }
        const QVariantList key{record.kiosk, device.device, device.thread, time};
        const QVariant notes = known->notes ? QVariant(*known->notes) : QVariant();
        if (device.isStackerPresent && !known->isStackerPresent) {
            m_collections.row(key)[0] = notes;
            known->notes = 0;
        } else if (device.isStackerFull && !known->isStackerFull && known->notes) {
            m_fullCassettes.row(key)[0] = notes;
        }
        known->isStackerPresent = device.isStackerPresent;
        known->isStackerFull = device.isStackerFull;
        remember(record.kiosk, *known);
        if (known->notes)
            writeLevel(record, device, {HistorySchema::cassette, 0, {}, 0, *known->notes});
        isNew = true;
    }
    return isNew;
}

void KioskLedger::applyCounts(const KioskChange& change)
{
    if (!change.record)
        return;
    Kiosk& kiosk = m_kiosks[change.kiosk];
    for (const KioskRecord::Device& device : change.record->devices)
        applyDevice(kiosk, *change.record, device);
    // Silence tells nothing of the devices.
    if (!change.record->devices.empty())
        kiosk.counted = change.record;
}

void KioskLedger::applyDevice(Kiosk& kiosk, const KioskRecord& record,
                              const KioskRecord::Device& device)
{
    auto known = findDevice(kiosk.devices, device);
    if (known == kiosk.devices.end()) {
        known = kiosk.devices.insert(known,
                                     {device.device,
                                      device.thread,
                                      record.time,
                                      device.inserted,
                                      device.rejected,
                                      device.returned,
                                      device.isStackerPresent,
                                      device.isStackerFull,
                                      {},
                                      false});
        remember(record.kiosk, *known);
    }
    const bool isLess = device.inserted < known->inserted || device.rejected < known->rejected
        || device.returned < known->returned;
    // The other worker knew more than has arrived here.
    if (isLess && known->isLoaded && record.time < known->time + grace)
        return;
    for (const KioskRecord::Level& level : device.levels) {
        if (!isWritten(kiosk.counted.get(), record, device, level))
            writeLevel(record, device, level);
    }
    const bool isNewDay =
        kiosk.counted && kiosk.counted->time / HistoryTime::day != record.time / HistoryTime::day;
    const qint64 inserted = growth(known->inserted, device.inserted);
    if (known->notes && (inserted > 0 || isNewDay))
        writeLevel(record, device, {HistorySchema::cassette, 0, {}, 0, *known->notes + inserted});
    if (device.inserted == known->inserted && device.rejected == known->rejected
        && device.returned == known->returned) {
        return;
    }
    const auto row = m_hours.row({record.kiosk, device.device, device.thread, hourOf(record.time)});
    row[0] = row[0].toLongLong() + inserted;
    row[1] = row[1].toLongLong() + growth(known->rejected, device.rejected);
    row[2] = row[2].toLongLong() + growth(known->returned, device.returned);
    if (known->notes)
        *known->notes += inserted;
    known->time = record.time;
    known->inserted = device.inserted;
    known->rejected = device.rejected;
    known->returned = device.returned;
    known->isLoaded = false;
    remember(record.kiosk, *known);
}

void KioskLedger::writeLevel(const KioskRecord& record, const KioskRecord::Device& device,
                             const KioskRecord::Level& level)
{
    const QString currency = level.currency.isNull() ? QStringLiteral("") : level.currency;
    const QVariantList channel{record.kiosk,       device.device, device.thread, level.channel,
                               level.denomination, currency,      level.billType};
    m_levels.row(channel + QVariantList{hourOf(record.time)})[0] = level.count;
    const auto row = m_channels.row(channel);
    row[0] = hourOf(record.time);
    row[1] = level.count;
}

void KioskLedger::remember(const QString& kiosk, const Device& device)
{
    const auto row = m_counters.row({kiosk, device.device, device.thread});
    row[0] = device.time;
    row[1] = device.inserted;
    row[2] = device.rejected;
    row[3] = device.returned;
    row[4] = int(device.isStackerPresent);
    row[5] = int(device.isStackerFull);
    row[6] = device.notes ? QVariant(*device.notes) : QVariant();
}

void KioskLedger::write(HistoryDatabase& database)
{
    for (const QString& kiosk : std::as_const(m_forgotten))
        database.run(QStringLiteral("DELETE FROM counters WHERE kiosk = ?"), {kiosk});
    m_forgotten.clear();
    m_positions.write(database);
    for (RowBatch* const periods : {&m_conditions, &m_faults}) {
        const int expected = periods->size();
        if (periods->write(database) != expected)
            throw ::Fault{Diagnosis::tr("another worker writes of the same kiosks")};
    }
    for (RowBatch* const rows :
         {&m_hours, &m_channels, &m_levels, &m_collections, &m_fullCassettes, &m_counters})
        rows->write(database);
}

void KioskLedger::clear()
{
    m_kiosks.clear();
    m_forgotten.clear();
    for (RowBatch* const rows : {&m_positions, &m_conditions, &m_faults, &m_hours, &m_channels,
                                 &m_levels, &m_collections, &m_fullCassettes, &m_counters})
        rows->clear();
}
