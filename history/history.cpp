// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "history.h"

#include "historydatabase.h"
#include "levelreader.h"
#include "text/diagnosis.h"
#include "text/fault.h"

#include <QDateTime>

#include <algorithm>

namespace {

qint64 startOf(const QDate& date)
{
    return date.startOfDay().toMSecsSinceEpoch();
}

QDate monthOf(const QDate& date)
{
    return {date.year(), date.month(), 1};
}

std::optional<qint64> numberOf(const QVariant& value)
{
    return value.isNull() ? std::nullopt : std::optional(value.toLongLong());
}

KioskSummary::Condition conditionOf(const QVariant& value)
{
    return KioskSummary::conditionOf(value.toString());
}

} // namespace

class History::Database : public HistoryDatabase
{
public:
    explicit Database(const QString& place)
        : HistoryDatabase(place, Read)
    {
    }

    /// Calls it for each row.
    template <typename Take>
    void read(const QString& sql, const QVariantList& values, Take take)
    {
        QSqlQuery& query = run(sql, values);
        while (query.next())
            take(query);
        query.finish();
    }
};

History::History(const QString& place)
    : m_database(std::make_unique<Database>(place))
{
}

History::~History() = default;

void History::requireWriter() const
{
    // A lease is for seconds; one that is a little late is no fault.
    constexpr int tolerance = 30000;
    bool isWritten = false;
    m_database->read(QStringLiteral("SELECT count(*) FROM writers WHERE until + ? > %1")
                         .arg(m_database->clock()),
                     {tolerance},
                     [&](const QSqlQuery& row) { isWritten = row.value(0).toInt() > 0; });
    if (!isWritten)
        throw Fault{
            Diagnosis::tr("No worker writes to the history: what lasts in it may be over.")};
}

QHash<QString, History::Now> History::now(qint64 now) const
{
    const qint64 month = startOf(monthOf(QDateTime::fromMSecsSinceEpoch(now).date()));
    QHash<QString, Now> kiosks;
    m_database->read(
        QStringLiteral("SELECT kiosk, condition, began FROM conditions WHERE ended IS NULL"), {},
        [&](const QSqlQuery& row) {
            const qint64 began = row.value(2).toLongLong();
            kiosks.insert(row.value(0).toString(), {conditionOf(row.value(1)), began, 1, {}});
        });
    m_database->read(QStringLiteral("SELECT kiosk, condition, count(*) FROM conditions"
                                    " WHERE ended > ? AND began >= ? GROUP BY kiosk, condition"),
                     {month, month}, [&](const QSqlQuery& row) {
                         const auto kiosk = kiosks.find(row.value(0).toString());
                         if (kiosk != kiosks.end() && kiosk->condition == conditionOf(row.value(1)))
                             kiosk->timesThisMonth += row.value(2).toInt();
                     });
    m_database->read(QStringLiteral("SELECT kiosk, fault FROM faults WHERE ended IS NULL"
                                    " ORDER BY kiosk, began, device, thread, reason"),
                     {}, [&](const QSqlQuery& row) {
                         const auto kiosk = kiosks.find(row.value(0).toString());
                         if (kiosk != kiosks.end())
                             kiosk->faults += row.value(1).toString();
                     });
    return kiosks;
}

std::vector<History::ConditionSpan> History::conditions(const QString& kiosk) const
{
    std::vector<ConditionSpan> spans;
    m_database->read(QStringLiteral("SELECT began, ended, condition FROM conditions"
                                    " WHERE kiosk = ? ORDER BY began"),
                     {kiosk}, [&](const QSqlQuery& row) {
                         spans.push_back({{row.value(0).toLongLong(), numberOf(row.value(1))},
                                          conditionOf(row.value(2))});
                     });
    return spans;
}

std::vector<History::FaultSpan> History::faults(const QString& kiosk) const
{
    std::vector<FaultSpan> spans;
    m_database->read(QStringLiteral("SELECT began, ended, device, thread, reason, fault FROM faults"
                                    " WHERE kiosk = ? ORDER BY began, device, thread, reason"),
                     {kiosk}, [&](const QSqlQuery& row) {
                         spans.push_back({{row.value(0).toLongLong(), numberOf(row.value(1))},
                                          {row.value(2).toInt(), row.value(3).toInt(),
                                           row.value(4).toString(), row.value(5).toString()}});
                     });
    return spans;
}

std::vector<History::Collection> History::collections(const QString& kiosk) const
{
    std::vector<Collection> collections;
    m_database->read(QStringLiteral("SELECT device, thread, time, notes FROM collections"
                                    " WHERE kiosk = ? ORDER BY time, device, thread"),
                     {kiosk}, [&](const QSqlQuery& row) {
                         collections.push_back({row.value(0).toInt(), row.value(1).toInt(),
                                                row.value(2).toLongLong(), numberOf(row.value(3))});
                     });
    return collections;
}

QHash<QString, History::Availability> History::availability(const QDate& month, qint64 now) const
{
    const qint64 begin = startOf(monthOf(month));
    const qint64 end = std::min(now, startOf(monthOf(month).addMonths(1)));
    QHash<QString, Availability> kiosks;
    const auto add = [&](const QSqlQuery& row) {
        const KioskSummary::Condition condition = conditionOf(row.value(1));
        const qint64 time = row.value(2).toLongLong();
        if (time <= 0)
            return;
        Availability& kiosk = kiosks[row.value(0).toString()];
        if (condition == KioskSummary::Unknown)
            return;
        kiosk.known += time;
        if (condition == KioskSummary::Silent)
            kiosk.silent += time;
        else if (condition != KioskSummary::OutOfOrder)
            kiosk.inService += time;
    };
    const QString overlap =
        QStringLiteral("SELECT kiosk, condition, sum(CASE WHEN ended < %2 THEN ended ELSE %2 END"
                       " - CASE WHEN began > %1 THEN began ELSE %1 END) FROM conditions"
                       " WHERE began < %2 AND %3 GROUP BY kiosk, condition");
    for (const char* const part : {"ended > %1", "ended IS NULL"}) {
        m_database->read(QString(overlap)
                             .replace(QLatin1String("%3"), QString(QLatin1String(part)))
                             .replace(QLatin1String("%1"), QString::number(begin))
                             .replace(QLatin1String("%2"), QString::number(end)),
                         {}, add);
    }
    return kiosks;
}

std::vector<History::Due> History::due(qint64 now) const
{
    return LevelReader(*m_database, now).due();
}
