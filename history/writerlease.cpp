// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "writerlease.h"

#include "historydatabase.h"

#include <QUuid>

using std::chrono::milliseconds;

namespace {

constexpr int lease = 5000; // milliseconds; renewed with every batch
constexpr std::chrono::seconds renewedAfter{2}; // where there is nothing to write

// Workers that have no lease take one after the other. Any number that nobody else locks.
constexpr char takingLock[] = "SELECT pg_advisory_xact_lock(7305808)";

} // namespace

WriterLease::WriterLease(const QString& part, const QString& worker)
    : m_part(part)
    , m_worker(worker)
    , m_token(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

// As SQL, of the end of a lease, and with a "?" for how long this worker has seen what happens. Who
// has not seen all since the writer that is gone wrote last leaves it to those that have, for as
// long as they need. A lease that ends in the far future was taken before the clock was set back.
QString WriterLease::isFree(const HistoryDatabase& database) const
{
    return QStringLiteral("(until > %1 + 2 * %2 OR %1 > until"
                          " + CASE WHEN until - %2 < %1 - ? THEN %2 ELSE 0 END)")
        .arg(database.clock())
        .arg(lease);
}

qint64 WriterLease::seenFor() const
{
    return std::chrono::duration_cast<milliseconds>(Clock::now() - m_began).count();
}

// Parts of as many are like this.
QString WriterLease::otherNumbers() const
{
    return QLatin1Char('%') + m_part.mid(m_part.indexOf(QLatin1Char('/')));
}

bool WriterLease::isOthers(HistoryDatabase& database) const
{
    QSqlQuery& query = database.run(
        QStringLiteral("SELECT count(*) FROM writers WHERE (part = ? OR part NOT LIKE ?)"
                       " AND token <> ? AND NOT ")
            + isFree(database),
        {m_part, otherNumbers(), m_token, seenFor()});
    const bool isOther = query.next() && query.value(0).toInt() > 0;
    query.finish();
    return isOther;
}

// With PostgreSQL whoever writes has the row of its lease locked until it is done. Who takes one
// waits for the rows of all that it must not write beside, and sees then what they left. Who
// renews has no lock that others wait for before it has its own row.
WriterLease::Held WriterLease::take(HistoryDatabase& database)
{
    const Clock::time_point now = Clock::now();
    const bool isMine =
        m_renewed != Clock::time_point::min() && now < m_renewed + milliseconds(lease);
    lose();
    if (isMine) {
        if (!isRenewed(database) || isOthers(database))
            return Others;
        m_renewed = now;
        return Mine;
    }
    if (database.isPostgres()) {
        database.execute(QLatin1String(takingLock));
        database
            .run(QStringLiteral("SELECT part FROM writers WHERE part = ? OR part NOT LIKE ?"
                                " ORDER BY part FOR UPDATE"),
                 {m_part, otherNumbers()})
            .finish();
    }
    if (isOthers(database))
        return Others;
    database.run(QStringLiteral("INSERT INTO writers(part, worker, token, epoch, until)"
                                " VALUES (?, ?, ?, 1, %1 + %2) ON CONFLICT(part) DO UPDATE SET"
                                " epoch = writers.epoch + 1, worker = excluded.worker,"
                                " token = excluded.token, until = excluded.until")
                     .arg(database.clock())
                     .arg(lease),
                 {m_part, m_worker, m_token});
    m_renewed = now;
    return Anew;
}

bool WriterLease::isRenewed(HistoryDatabase& database) const
{
    return database
               .run(QStringLiteral("UPDATE writers SET until = %1 + %2"
                                   " WHERE part = ? AND token = ? AND until > %1")
                        .arg(database.clock())
                        .arg(lease),
                    {m_part, m_token})
               .numRowsAffected()
        > 0;
}

bool WriterLease::isToRenew() const
{
    return m_renewed == Clock::time_point::min() || Clock::now() >= m_renewed + renewedAfter;
}

void WriterLease::giveUp(HistoryDatabase& database) const
{
    database.run(QStringLiteral("UPDATE writers SET until = 0 WHERE part = ? AND token = ?"),
                 {m_part, m_token});
}
