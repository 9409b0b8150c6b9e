// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historyrecorder.h"

#include "changequeue.h"
#include "historydatabase.h"
#include "text/diagnosis.h"

#include <QLoggingCategory>
#include <QUuid>

#include <algorithm>
#include <condition_variable>
#include <thread>

using std::chrono::seconds;

namespace {

Q_LOGGING_CATEGORY(historyLog, "velmo.history")

constexpr seconds batchEvery{1};
constexpr seconds longestPause{30};
constexpr seconds kept{30}; // what the writer that is may not have written when it is gone
constexpr seconds longestEnding{5};

constexpr int lease = 5000; // milliseconds; renewed with every batch
constexpr int renewedAfter = 2; // seconds, where there is nothing to write
constexpr int mostFailures = 5; // to write the same changes, while the database answers

} // namespace

/// Belongs to the recorder and to its thread; to the latter alone, when the database does not
/// answer and the recorder is gone.
class HistoryRecorder::Thread
{
public:
    using Clock = ChangeQueue::Clock;

    Thread(const QString& place, const QString& part, const QString& worker)
        : m_place(place)
        , m_part(part)
        , m_worker(worker)
    {
    }

    /// Until it is to end.
    void run();

    /// @return whether it has ended in time
    bool end();

    Status status() const;

    ChangeQueue queue;

private:
    enum class Lease { Mine, Anew, Others };

    bool turn(bool isLast);
    void open();
    void find();
    QString isFree(const QString& until) const;
    qint64 seenFor() const;
    bool isOthers();
    Lease take();
    void write(bool isLast);
    void apply(const std::vector<KioskChange>& changes);
    void reconcile();
    void giveUp();
    void passOver(bool isOfData);
    void lose(const QString& why);

    const QString m_place;
    const QString m_part;
    const QString m_worker;
    const Clock::time_point m_began = Clock::now();
    const QString m_token = QUuid::createUuid().toString(QUuid::WithoutBraces);

    mutable std::mutex m_mutex; // of what follows
    std::condition_variable m_condition;
    bool m_isEnding = false;
    bool m_hasEnded = false;
    Status m_status;
    bool m_isOthers = false; // another worker has the lease

    // Of the thread alone.
    std::unique_ptr<HistoryDatabase> m_database;
    KioskLedger m_ledger;
    qint64 m_epoch = -1; // which the ledger is of
    Clock::time_point m_renewed;
    Clock::time_point m_reconcileAt = Clock::time_point::max();
    qint64 m_lost = 0; // as it was known last
    int m_failures = 0; // to write the same, though the database answers
    quint64 m_writing = 0; // the number after the last change that is being written
    qint64 m_writingCount = 0;
    seconds m_pause{0};
    Clock::time_point m_nextAttempt;
};

void HistoryRecorder::Thread::run()
{
    for (bool isLast = false; !isLast;) {
        {
            std::unique_lock lock(m_mutex);
            m_condition.wait_for(lock, batchEvery, [this] { return m_isEnding; });
            isLast = m_isEnding;
        }
        const bool isDone = isLast || Clock::now() >= m_nextAttempt ? turn(isLast) : false;
        if (isLast && isDone)
            giveUp();
    }
    m_database.reset();
    const std::lock_guard lock(m_mutex);
    m_hasEnded = true;
    m_condition.notify_all();
}

bool HistoryRecorder::Thread::end()
{
    std::unique_lock lock(m_mutex);
    m_isEnding = true;
    m_condition.notify_all();
    return m_condition.wait_for(lock, longestEnding, [this] { return m_hasEnded; });
}

HistoryRecorder::Status HistoryRecorder::Thread::status() const
{
    const std::lock_guard lock(m_mutex);
    Status status = m_status;
    status.waiting = m_isOthers ? 0 : queue.size();
    status.lost += queue.lost();
    return status;
}

bool HistoryRecorder::Thread::turn(bool isLast)
{
    try {
        open();
        const bool isOther = isOthers();
        {
            const std::lock_guard lock(m_mutex);
            m_isOthers = isOther;
            m_status.isWriter = m_status.isWriter && !isOther;
        }
        if (isOther)
            queue.dropOlder(Clock::now() - kept);
        else
            write(isLast);
        find();
        return true;
    } catch (const HistoryDatabase::Error& error) {
        passOver(error.isOfData);
        lose(error.message);
    } catch (const Fault& fault) {
        passOver(true);
        lose(fault.message);
    }
    return false;
}

// What cannot be written however often it is tried does not keep back what comes after it.
void HistoryRecorder::Thread::passOver(bool isOfData)
{
    if (!isOfData || ++m_failures < mostFailures)
        return;
    m_failures = 0;
    queue.drop(m_writing);
    const std::lock_guard lock(m_mutex);
    m_status.lost += m_writingCount;
}

void HistoryRecorder::Thread::open()
{
    if (m_database)
        m_database->requirePlace();
    else
        m_database = std::make_unique<HistoryDatabase>(m_place, HistoryDatabase::Write);
}

// When it takes what is written: it may be opened, and have no room.
void HistoryRecorder::Thread::find()
{
    m_pause = seconds(0);
    const std::lock_guard lock(m_mutex);
    if (!m_status.fault.isEmpty()) {
        qCInfo(historyLog, "%s", qUtf8Printable(Diagnosis::tr("The history's database is back.")));
    }
    m_status.fault.clear();
}

void HistoryRecorder::Thread::lose(const QString& why)
{
    m_ledger.clear();
    m_epoch = -1;
    m_database.reset();
    m_pause = m_pause.count() == 0 ? seconds(1) : std::min(2 * m_pause, longestPause);
    m_nextAttempt = Clock::now() + m_pause;
    const std::lock_guard lock(m_mutex);
    if (m_status.fault.isEmpty())
        qCWarning(historyLog, "%s", qUtf8Printable(why));
    m_status.fault = why;
    m_status.isWriter = false;
    m_isOthers = false;
}

// As SQL, of the end of a lease, and with a "?" for how long this worker has seen what happens. Who
// has not seen all since the writer that is gone wrote last leaves it to those that have, for as
// long as they need. A lease that ends in the far future was taken before the clock was set back.
QString HistoryRecorder::Thread::isFree(const QString& until) const
{
    return QStringLiteral("(%1 > %2 + 2 * %3 OR %2 > %1"
                          " + CASE WHEN %1 - %3 < %2 - ? THEN %3 ELSE 0 END)")
        .arg(until, m_database->clock())
        .arg(lease);
}

qint64 HistoryRecorder::Thread::seenFor() const
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_began).count();
}

bool HistoryRecorder::Thread::isOthers()
{
    QSqlQuery& query = m_database->run(
        QStringLiteral("SELECT count(*) FROM writers WHERE part = ? AND token <> ? AND NOT ")
            + isFree(QStringLiteral("until")),
        {m_part, m_token, seenFor()});
    const bool isOther = query.next() && query.value(0).toInt() > 0;
    query.finish();
    return isOther;
}

HistoryRecorder::Thread::Lease HistoryRecorder::Thread::take()
{
    const int taken =
        m_database
            ->run(QStringLiteral("INSERT INTO writers(part, worker, token, epoch, until)"
                                 " VALUES (?, ?, ?, 1, %1 + %2) ON CONFLICT(part) DO UPDATE SET"
                                 " epoch = CASE WHEN writers.token = excluded.token"
                                 " THEN writers.epoch ELSE writers.epoch + 1 END,"
                                 " worker = excluded.worker, token = excluded.token,"
                                 " until = excluded.until"
                                 " WHERE writers.token = excluded.token OR ")
                          .arg(m_database->clock())
                          .arg(lease)
                      + isFree(QStringLiteral("writers.until")),
                  {m_part, m_worker, m_token, seenFor()})
            .numRowsAffected();
    if (taken == 0)
        return Lease::Others;
    QSqlQuery& query =
        m_database->run(QStringLiteral("SELECT epoch FROM writers WHERE part = ?"), {m_part});
    const qint64 epoch = query.next() ? query.value(0).toLongLong() : -1;
    query.finish();
    return std::exchange(m_epoch, epoch) == epoch ? Lease::Mine : Lease::Anew;
}

void HistoryRecorder::Thread::write(bool isLast)
{
    const ChangeQueue::Batch batch = queue.waiting();
    const bool isReconciling = Clock::now() >= m_reconcileAt;
    const std::vector<KioskChange> counts = queue.takeCounts(isLast);
    if (batch.changes.empty() && counts.empty() && !isReconciling && m_epoch >= 0
        && Clock::now() < m_renewed + seconds(renewedAfter)) {
        return;
    }
    HistoryTransaction transaction(*m_database);
    const Lease held = take();
    if (held == Lease::Others)
        return;
    if (held == Lease::Anew) {
        m_ledger.clear();
        m_reconcileAt = Clock::now() + kept;
    }
    m_writing = batch.first + batch.changes.size();
    m_writingCount = qint64(batch.changes.size());
    apply(batch.changes);
    apply(counts);
    const qint64 lost = queue.lost();
    if (isReconciling || lost != m_lost)
        reconcile();
    m_ledger.write(*m_database);
    transaction.commit();
    m_renewed = Clock::now();
    m_lost = lost;
    if (isReconciling)
        m_reconcileAt = Clock::time_point::max();
    queue.drop(m_writing);
    m_failures = 0;
    const std::lock_guard lock(m_mutex);
    m_status.isWriter = true;
    m_status.written += m_writingCount;
}

// Of a kiosk that the ledger has not met, some of the changes may be written already, by another
// worker or by this one: those up to the message that the database has of it.
void HistoryRecorder::Thread::apply(const std::vector<KioskChange>& changes)
{
    QSet<QString> kiosks;
    for (const KioskChange& change : changes)
        kiosks.insert(change.kiosk);
    const QSet<QString> loaded = m_ledger.load(*m_database, kiosks);

    struct Written
    {
        std::size_t before = 0; // changes with a lower number
        qint64 until = 0; // or, where the message is not among them, that are not later
    };
    QHash<QString, Written> written;
    for (const QString& kiosk : loaded) {
        const auto position = m_ledger.position(kiosk);
        if (position && queue.messageBefore(kiosk) != position->message)
            written[kiosk].until = position->time;
    }
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const auto of = written.find(changes[i].kiosk);
        if (of != written.end() && changes[i].kind != KioskChange::Counts
            && changes[i].message == m_ledger.position(changes[i].kiosk)->message) {
            *of = {i + 1, 0};
        }
    }
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const Written of = written.value(changes[i].kiosk);
        if (i < of.before || changes[i].time <= of.until)
            m_ledger.applyCounts(changes[i]);
        else
            m_ledger.apply(changes[i]);
    }
}

void HistoryRecorder::Thread::reconcile()
{
    const std::vector<KioskChange> latest = queue.latest();
    QSet<QString> kiosks;
    for (const KioskChange& change : latest)
        kiosks.insert(change.kiosk);
    m_ledger.load(*m_database, kiosks);
    for (const KioskChange& change : latest)
        m_ledger.apply(change);
}

void HistoryRecorder::Thread::giveUp()
{
    try {
        m_database->run(QStringLiteral("UPDATE writers SET until = 0 WHERE part = ? AND token = ?"),
                        {m_part, m_token});
    } catch (const Fault&) { // it runs out
    }
}

HistoryRecorder::HistoryRecorder(const QString& place, const QString& part, const QString& worker)
{
    try {
        HistoryDatabase(place, HistoryDatabase::Write);
    } catch (const HistoryDatabase::Error& error) {
        if (!error.mayPass)
            throw Fault{error.message};
    }
    m_thread = std::make_shared<Thread>(place, part, worker);
    std::thread([thread = m_thread] { thread->run(); }).detach();
}

HistoryRecorder::~HistoryRecorder()
{
    m_thread->end();
}

void HistoryRecorder::record(KioskRecord record)
{
    m_thread->queue.record(std::move(record));
}

void HistoryRecorder::forget(const QString& kiosk, qint64 time)
{
    m_thread->queue.forget(kiosk, time);
}

HistoryRecorder::Status HistoryRecorder::status() const
{
    return m_thread->status();
}
