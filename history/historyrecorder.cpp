// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historyrecorder.h"

#include "changequeue.h"
#include "historydatabase.h"
#include "text/diagnosis.h"
#include "writerlease.h"

#include <QLoggingCategory>

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
        , m_lease(part, worker)
    {
    }

    /// Until it is to end.
    void run();

    /// @return whether it has ended in time
    bool end();

    Status status() const;

    void forgetGone(std::function<bool(const QString&)> isGone, qint64 time);

    ChangeQueue queue;

private:
    struct Gone
    {
        std::function<bool(const QString&)> has;
        qint64 time;
    };

    bool turn(bool isLast);
    void open();
    void find();
    void write(bool isLast);
    void apply(const std::vector<KioskChange>& changes);
    void reconcile();
    void forget(const Gone& gone, const std::vector<KioskChange>& changes);
    void giveUp();
    void passOver(bool isOfData);
    void lose(const QString& why);

    const QString m_place;

    mutable std::mutex m_mutex; // of what follows
    std::condition_variable m_condition;
    bool m_isEnding = false;
    bool m_hasEnded = false;
    Status m_status;
    bool m_isOthers = false; // another worker has the lease
    std::shared_ptr<const Gone> m_gone; // who is to be forgotten; null for none

    // Of the thread alone.
    std::unique_ptr<HistoryDatabase> m_database;
    WriterLease m_lease;
    KioskLedger m_ledger; // of what is written while it has the lease
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

void HistoryRecorder::Thread::forgetGone(std::function<bool(const QString&)> isGone, qint64 time)
{
    const std::lock_guard lock(m_mutex);
    m_gone = std::make_shared<const Gone>(Gone{std::move(isGone), time});
}

bool HistoryRecorder::Thread::turn(bool isLast)
{
    try {
        open();
        const bool isOther = m_lease.isOthers(*m_database);
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
    m_gone.reset();
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
    m_lease.lose();
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

void HistoryRecorder::Thread::write(bool isLast)
{
    const ChangeQueue::Batch batch = queue.waiting();
    const bool isReconciling = Clock::now() >= m_reconcileAt;
    const std::vector<KioskChange> counts = queue.takeCounts(isLast);
    std::shared_ptr<const Gone> gone;
    {
        const std::lock_guard lock(m_mutex);
        gone = m_gone;
    }
    if (batch.changes.empty() && counts.empty() && !isReconciling && !gone
        && !m_lease.isToRenew()) {
        return;
    }
    HistoryTransaction transaction(*m_database);
    const WriterLease::Held held = m_lease.take(*m_database);
    if (held == WriterLease::Others)
        return;
    if (held == WriterLease::Anew) {
        m_ledger.clear();
        m_reconcileAt = Clock::now() + kept;
    }
    m_writing = batch.first + batch.changes.size();
    m_writingCount = qint64(batch.changes.size());
    if (gone)
        forget(*gone, batch.changes);
    apply(batch.changes);
    apply(counts);
    const qint64 lost = queue.lost();
    if (isReconciling || lost != m_lost)
        reconcile();
    m_ledger.write(*m_database);
    transaction.commit();
    m_lost = lost;
    if (isReconciling)
        m_reconcileAt = Clock::time_point::max();
    queue.drop(m_writing);
    m_failures = 0;
    const std::lock_guard lock(m_mutex);
    if (m_gone == gone)
        m_gone.reset();
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

// What is known here, or waits to be written, says more of a kiosk than that it was gone once.
void HistoryRecorder::Thread::forget(const Gone& gone, const std::vector<KioskChange>& changes)
{
    QSet<QString> told;
    for (const KioskChange& change : changes)
        told.insert(change.kiosk);
    for (const KioskChange& change : queue.latest())
        told.insert(change.kiosk);
    QSet<QString> kiosks;
    QSqlQuery& query = m_database->run(
        QStringLiteral("SELECT kiosk FROM conditions WHERE ended IS NULL AND began < ?"),
        {gone.time});
    while (query.next()) {
        const QString kiosk = query.value(0).toString();
        if (!told.contains(kiosk) && gone.has(kiosk))
            kiosks.insert(kiosk);
    }
    query.finish();
    m_ledger.load(*m_database, kiosks);
    for (const QString& kiosk : std::as_const(kiosks))
        m_ledger.apply({KioskChange::Forgotten, kiosk, gone.time, 0, nullptr});
}

void HistoryRecorder::Thread::giveUp()
{
    try {
        m_lease.giveUp(*m_database);
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

void HistoryRecorder::forgetGone(std::function<bool(const QString& kiosk)> isGone, qint64 time)
{
    m_thread->forgetGone(std::move(isGone), time);
}

HistoryRecorder::Status HistoryRecorder::status() const
{
    return m_thread->status();
}
