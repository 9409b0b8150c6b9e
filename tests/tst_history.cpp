// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "forecast.h"
#include "history.h"
#include "historydatabase.h"
#include "historyrecorder.h"
#include "testtable.h"
#include "text/fault.h"

#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <unistd.h>

namespace {

constexpr qint64 hour = 3600 * 1000;
constexpr qint64 day = 24 * hour;
constexpr qint64 start = 1'790'000'000'000 - 1'790'000'000'000 % day;

using Condition = KioskSummary::Condition;

// A server of its own in a folder, on a Unix socket; or nothing where PostgreSQL is not installed.
class PostgresServer
{
public:
    PostgresServer()
    {
        const QDir versions("/usr/lib/postgresql"_s);
        for (const QString& version : versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            m_programs = versions.filePath(version) + "/bin/"_s;
        if (!QFile::exists(m_programs + "initdb"_s) || !m_folder.isValid())
            m_programs.clear();
        if (!isThere())
            return;
        QFile(m_folder.path()).setPermissions(QFile::Permissions(0x7777));
        QVERIFY(run("initdb"_s, {"-A"_s, "trust"_s, "-U"_s, "velmo"_s, "-N"_s}));
        startServer();
    }
    ~PostgresServer()
    {
        if (isThere())
            stop("immediate"_s);
    }
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    bool isThere() const { return !m_programs.isEmpty(); }

    void startServer()
    {
        const QString options = "-k %1 -c listen_addresses='' -c fsync=off"_s.arg(m_folder.path());
        QVERIFY(run("pg_ctl"_s,
                    {"start"_s, "-w"_s, "-l"_s, m_folder.filePath("log"_s), "-o"_s, options}));
    }

    void stop(const QString& how) { run("pg_ctl"_s, {"stop"_s, "-w"_s, "-m"_s, how}); }

    // Of a database that is made.
    QString place(const QString& database)
    {
        const QString connection = "making"_s;
        {
            QSqlDatabase server = QSqlDatabase::addDatabase("QPSQL"_s, connection);
            server.setHostName(m_folder.path());
            server.setDatabaseName("postgres"_s);
            server.setUserName("velmo"_s);
            if (server.open())
                QSqlQuery(server).exec("CREATE DATABASE "_s + database);
        }
        QSqlDatabase::removeDatabase(connection);
        return "postgresql://velmo:secret@/%1?host=%2"_s.arg(database, m_folder.path());
    }

private:
    // It refuses to be run by root.
    bool run(const QString& program, const QStringList& arguments)
    {
        QStringList all{m_programs + program, "-D"_s, m_folder.filePath("data"_s)};
        all += arguments;
        if (geteuid() == 0)
            all = QStringList{"setpriv"_s, "--reuid=nobody"_s, "--regid=nogroup"_s,
                              "--clear-groups"_s}
                + all;
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.setWorkingDirectory(m_folder.path());
        process.start(all.takeFirst(), all);
        return process.waitForFinished() && process.exitCode() == 0;
    }

    QTemporaryDir m_folder;
    QString m_programs;
};

KioskFault fault(const QString& reason)
{
    return {7, 2, reason, "It is %1."_s.arg(reason)};
}

// Fine, or with a fault.
KioskRecord record(const QString& kiosk, qint64 time, quint64 message, Condition condition,
                   const QStringList& reasons = {})
{
    KioskRecord record{kiosk, time, message, condition, {}, {}};
    for (const QString& reason : reasons)
        record.faults.push_back(fault(reason));
    return record;
}

// With a validator that has a cassette and two channels.
KioskRecord counted(qint64 time, qint64 inserted, const QString& cassette = "present"_s,
                    qint64 level = 100)
{
    KioskRecord record{"k1"_s, time, quint64(time), Condition::Fine, {}, {}};
    record.devices.push_back({7,
                              2,
                              inserted,
                              1,
                              2,
                              cassette != "out"_s,
                              cassette == "full"_s,
                              {{0, 100, "643"_s, 1, level}, {1, 500, "643"_s, 1, 50}}});
    return record;
}

void waitForWritten(const HistoryRecorder& recorder, qint64 changes)
{
    QTRY_VERIFY_WITH_TIMEOUT(recorder.status().written >= changes, 20000);
}

// What a query gives, the first column in hours since the start.
QString rows(const QString& place, const QString& sql)
{
    QStringList texts;
    HistoryDatabase database(place, HistoryDatabase::Read);
    QSqlQuery& query = database.run(sql);
    while (query.next()) {
        QStringList cells{QString::number((query.value(0).toLongLong() - start) / hour)};
        for (int i = 1; i < query.record().count(); ++i)
            cells += query.isNull(i) ? "-"_s : query.value(i).toString();
        texts += cells.join(QLatin1Char(' '));
    }
    return texts.join(", "_s);
}

QString shown(const History& history, const QString& kiosk)
{
    QStringList texts;
    const auto span = [](const History::Span& of, const QString& what) {
        return "%1-%2 %3"_s.arg(of.began - start)
            .arg(of.ended ? QString::number(*of.ended - start) : QString())
            .arg(what);
    };
    for (const History::ConditionSpan& condition : history.conditions(kiosk))
        texts += span(condition, QLatin1String(KioskSummary::name(condition.condition)));
    for (const History::FaultSpan& each : history.faults(kiosk))
        texts += span(each, each.fault.reason);
    return texts.join(", "_s);
}

const QString workerOption = "--worker"_s;

void recordUntil(HistoryRecorder& recorder, quint64 last, qint64 late)
{
    for (quint64 message = 1; message <= last; ++message) {
        for (const QString& kiosk : {"k1"_s, "k2"_s}) {
            recorder.record(record(kiosk, start + qint64(message) * 100 + late, message,
                                   message % 2 == 1 ? Condition::Fine : Condition::Faulty,
                                   message % 2 == 1 ? QStringList() : QStringList{"a"_s}));
        }
    }
}

// A worker that writes, and dies with a change that it has not written.
[[noreturn]] void workUntilKilled(const QString& place)
{
    HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
    recordUntil(recorder, 4, 0);
    while (recorder.status().written < 8)
        QThread::msleep(10);
    std::puts("written");
    std::fflush(stdout);
    QThread::sleep(4); // it renews its right to write after the other is there
    recorder.record(record("k1"_s, start + 500, 5, Condition::Fine));
    std::raise(SIGKILL);
    std::abort();
}

} // namespace

class tst_History : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PostgresServer> m_server;
    int m_places = 0;

    QString newPlace(const QString& kind)
    {
        const QString name = "history%1"_s.arg(++m_places);
        return kind == "postgres"_s ? m_server->place(name) : m_folder.filePath(name + ".sqlite"_s);
    }

    // One row for each kind of database that there is here.
    void addKinds()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("sqlite") << "sqlite"_s;
        if (m_server->isThere())
            QTest::newRow("postgres") << "postgres"_s;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<PostgresServer>();
        if (!m_server->isThere())
            qInfo("Without PostgreSQL, which is not installed.");
    }

    void periodsFollowEachOther_data() { addKinds(); }

    void periodsFollowEachOther()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            recorder.record(record("k1"_s, start, 1, Condition::Fine));
            recorder.record(record("k1"_s, start + 10, 2, Condition::Fine));
            recorder.record(record("k1"_s, start + 20, 3, Condition::Faulty, {"halted"_s}));
            recorder.record(
                record("k1"_s, start + 30, 4, Condition::Faulty, {"halted"_s, "offline"_s}));
            recorder.record(record("k2"_s, start + 35, 5, Condition::Silent, {"silent"_s}));
            recorder.record(record("k1"_s, start + 25, 6, Condition::OutOfOrder, {"offline"_s}));
            waitForWritten(recorder, 5);
            recorder.record(record("k1"_s, start + 26, 7, Condition::Fine));
            recorder.forget("k2"_s, start + 50);
        }
        const History history(place);
        QCOMPARE(shown(history, "k1"_s),
                 "0-20 fine, 20-31 faulty, 31-32 out_of_order, 32- fine, "
                 "20-31 halted, 30-32 offline"_s);
        QCOMPARE(shown(history, "k2"_s), "35-50 silent, 35-50 silent"_s);
        QCOMPARE(history.now(start + 60).keys(), QStringList{"k1"_s});
    }

    // Kiosks that another worker wrote of, which is gone.
    void kiosksThatAreGoneAreForgotten_data() { addKinds(); }

    void kiosksThatAreGoneAreForgotten()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            for (const QString& kiosk : {"gone"_s, "stays"_s, "back"_s, "of another part"_s})
                recorder.record(record(kiosk, start, 1, Condition::Faulty, {"halted"_s}));
            recorder.record(record("new"_s, start + 60, 1, Condition::Fine));
        }
        {
            HistoryRecorder recorder(place, "1/1"_s, "w2"_s);
            recorder.record(record("stays"_s, start + 10, 1, Condition::Faulty, {"halted"_s}));
            recorder.forgetGone([](const QString& kiosk) { return kiosk != "of another part"_s; },
                                start + 50);
            recorder.record(record("back"_s, start + 51, 2, Condition::Fine));
        }
        const History history(place);
        QCOMPARE(shown(history, "gone"_s), "0-50 faulty, 0-50 halted"_s);
        for (const QString& kiosk : {"stays"_s, "of another part"_s})
            QCOMPARE(shown(history, kiosk), "0- faulty, 0- halted"_s);
        QCOMPARE(shown(history, "back"_s), "0-51 faulty, 51- fine, 0-51 halted"_s);
        QCOMPARE(shown(history, "new"_s), "60- fine"_s);
    }

    void cassettesAreCountedBetweenCollections_data() { addKinds(); }

    void cassettesAreCountedBetweenCollections()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            recorder.record(counted(start, 1000));
            recorder.record(counted(start + 1, 1005));
            recorder.record(counted(start + hour, 1010));
            recorder.record(counted(start + hour + 1, 1010, "out"_s));
            recorder.record(counted(start + hour + 2, 1011));
            recorder.record(counted(start + 2 * hour, 1031));
        }
        { // another worker, and the device counts anew
            HistoryRecorder recorder(place, "1/1"_s, "w2"_s);
            recorder.record(counted(start + 2 * hour + 1, 1031));
            recorder.record(counted(start + 2 * hour + 60000, 9));
            recorder.record(counted(start + 3 * hour, 20, "full"_s, 90));
            recorder.record(counted(start + 3 * hour + 1, 20, "out"_s, 90));
            recorder.record(counted(start + 3 * hour + 2, 20, "present"_s, 90));
        }
        QCOMPARE(
            rows(place, "SELECT hour, inserted, rejected, returned FROM hours ORDER BY hour"_s),
            "0 5 0 0, 1 6 0 0, 2 29 0 0, 3 11 0 0"_s);
        QCOMPARE(rows(place, "SELECT time, notes FROM collections ORDER BY time"_s), "1 -, 3 40"_s);
        QCOMPARE(rows(place, "SELECT time, notes FROM full_cassettes ORDER BY time"_s), "3 40"_s);
        QCOMPARE(rows(place,
                      "SELECT hour, channel, count FROM levels WHERE channel <> 1"
                      " ORDER BY hour, channel"_s),
                 "0 0 100, 1 -1 0, 2 -1 29, 2 0 100, 3 -1 0, 3 0 90"_s);
    }

    // Of two workers of one part the first is killed, with a change that it has not written.
    void anotherWorkerTakesOver_data() { addKinds(); }

    void anotherWorkerTakesOver()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        HistoryDatabase(place, HistoryDatabase::Write);
        QProcess first; // is this program
        first.start(QCoreApplication::applicationFilePath(), {workerOption, place});
        QVERIFY(first.waitForReadyRead());
        {
            HistoryRecorder recorder(place, "1/1"_s, "w2"_s);
            recordUntil(recorder, 6, 7);
            QVERIFY(first.waitForFinished());
            QCOMPARE(first.exitStatus(), QProcess::CrashExit);
            QVERIFY(!recorder.status().isWriter);
            // It knows less than the one that has seen all, to which it leaves the rest.
            HistoryRecorder fresh(place, "1/1"_s, "w3"_s);
            fresh.record(record("k1"_s, start + 600, 6, Condition::Faulty, {"a"_s}));
            waitForWritten(recorder, 12);
            QVERIFY(!fresh.status().isWriter);
            QVERIFY(recorder.status().isWriter);
        }
        const History history(place);
        for (const QString& kiosk : {"k1"_s, "k2"_s}) {
            QCOMPARE(shown(history, kiosk),
                     "100-200 fine, 200-300 faulty, 300-400 fine, 400-507 faulty, 507-607 fine, "
                     "607- faulty, 200-300 a, 400-507 a, 607- a"_s);
        }
    }

    // Both see the same, with clocks apart, and start and end in between.
    void twoWorkersWriteEachChangeOnce_data() { addKinds(); }

    void twoWorkersWriteEachChangeOnce()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        std::array<std::unique_ptr<HistoryRecorder>, 2> workers;
        constexpr int rounds = 400;
        for (int i = 0; i < rounds; ++i) {
            const int restarted = i % 100 == 0 ? i / 100 % 2 : -1;
            for (int w = 0; w < 2; ++w) {
                std::unique_ptr<HistoryRecorder>& worker = workers[std::size_t(w)];
                if (w == restarted || !worker) {
                    worker.reset();
                    worker = std::make_unique<HistoryRecorder>(place, "1/1"_s, QString::number(w));
                    if (i > 0) // what is retained
                        worker->record(record("k"_s, start + i * 10 - 10 + w * 400, quint64(i),
                                              Condition(2 + (i - 1) % 3)));
                }
                worker->record(
                    record("k"_s, start + i * 10 + w * 400, quint64(i + 1), Condition(2 + i % 3)));
            }
            QThread::msleep(10);
        }
        for (std::unique_ptr<HistoryRecorder>& worker : workers)
            worker.reset();
        const std::vector<History::ConditionSpan> spans = History(place).conditions("k"_s);
        QCOMPARE(int(spans.size()), rounds);
        for (std::size_t i = 0; i < spans.size(); ++i) {
            QCOMPARE(spans[i].condition, Condition(2 + i % 3));
            QCOMPARE(spans[i].ended.has_value(), i + 1 < spans.size());
            QVERIFY(i == 0 || spans[i - 1].ended == spans[i].began);
        }
    }

    // Workers in one part and in two write of the same kiosks, until those end that were first.
    void numberOfPartsMayChange_data() { addKinds(); }

    void numberOfPartsMayChange()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        struct Worker
        {
            std::unique_ptr<HistoryRecorder> recorder;
            QStringList kiosks;
        };
        std::array<Worker, 3> workers{{{{}, {"k1"_s, "k2"_s}}, {{}, {"k1"_s}}, {{}, {"k2"_s}}}};
        const auto parts = {"1/1"_s, "1/2"_s, "2/2"_s};
        for (std::size_t w = 0; w < workers.size(); ++w)
            workers[w].recorder = std::make_unique<HistoryRecorder>(place, parts.begin()[w], "w"_s);
        constexpr int rounds = 300;
        for (int i = 0; i < rounds; ++i) {
            const bool isOneWriter = workers[0].recorder && workers[0].recorder->status().isWriter;
            for (std::size_t w = 0; w < workers.size(); ++w) {
                Worker& worker = workers[w];
                if (i == rounds / 2 && isOneWriter == (w == 0))
                    worker.recorder.reset();
                if (!worker.recorder)
                    continue;
                for (const QString& kiosk : worker.kiosks) {
                    KioskRecord each = counted(start + i * 10, 1000 + i);
                    each.kiosk = kiosk;
                    each.message = quint64(i + 1);
                    each.condition = Condition(2 + i % 3);
                    worker.recorder->record(each);
                }
                QCOMPARE(worker.recorder->status().fault, QString());
                QVERIFY(w == 0 || !isOneWriter || !worker.recorder->status().isWriter);
            }
            QThread::msleep(40);
        }
        for (Worker& worker : workers) {
            QVERIFY(!worker.recorder || worker.recorder->status().isWriter);
            QVERIFY(!worker.recorder || worker.recorder->status().lost == 0);
            worker.recorder.reset();
        }
        for (const QString& kiosk : {"k1"_s, "k2"_s})
            QCOMPARE(int(History(place).conditions(kiosk).size()), rounds);
        QCOMPARE(rows(place, "SELECT hour, kiosk, inserted FROM hours ORDER BY kiosk"_s),
                 "0 k1 299, 0 k2 299"_s);
    }

    void changesWaitForTheDatabase()
    {
        if (!m_server->isThere()) {
            QTest::qSkip("PostgreSQL is not installed.", __FILE__, __LINE__);
            return;
        }
        const QString place = newPlace("postgres"_s);
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            recorder.record(record("k1"_s, start, 1, Condition::Fine));
            waitForWritten(recorder, 1);
            m_server->stop("immediate"_s);
            recorder.record(record("k1"_s, start + 1, 2, Condition::Silent));
            QTRY_VERIFY(!recorder.status().fault.isEmpty());
            QVERIFY(recorder.status().fault.startsWith("postgresql://velmo@"_s));
            QVERIFY(!recorder.status().isWriter);
            QCOMPARE(recorder.status().waiting, 1);
            HistoryRecorder late(place, "1/1"_s, "w2"_s);
            late.record(record("k1"_s, start + 2, 2, Condition::Silent));
            m_server->startServer();
            QTRY_VERIFY_WITH_TIMEOUT(recorder.status().written + late.status().written >= 2, 15000);
            QTRY_VERIFY_WITH_TIMEOUT(recorder.status().fault.isEmpty(), 15000);
        }
        QVERIFY(QRegularExpression("^0-[12] fine, [12]- silent$"_s)
                    .match(shown(History(place), "k1"_s))
                    .hasMatch());
    }

    void fileThatIsTakenAwayIsMissed()
    {
        const QString place = newPlace("sqlite"_s);
        HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
        recorder.record(record("k1"_s, start, 1, Condition::Fine));
        waitForWritten(recorder, 1);
        for (const QString& end : {QString(), "-wal"_s, "-shm"_s})
            QFile::remove(place + end);
        QTRY_VERIFY(recorder.status().fault.endsWith("the file was removed or replaced"_s));
        recorder.record(record("k2"_s, start, 2, Condition::Silent));
        QTRY_VERIFY(recorder.status().fault.isEmpty());
        waitForWritten(recorder, 2);
        QCOMPARE(shown(History(place), "k2"_s), "0- silent"_s);
    }

    void oldestChangesAreLostWhereThereIsNoRoom()
    {
        const QString place = "postgresql://velmo:secret@/none?host="_s + m_folder.path();
        HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
        for (int i = 0; i < 100'010; ++i) {
            recorder.record(record("k%1"_s.arg(i % 1000), start + i, quint64(i + 1),
                                   i / 1000 % 2 == 0 ? Condition::Fine : Condition::Silent));
        }
        QCOMPARE(recorder.status().lost, 10);
        QCOMPARE(recorder.status().waiting, 100'000);
        QTRY_VERIFY(!recorder.status().fault.isEmpty());
        QVERIFY2(!recorder.status().fault.contains("secret"_s),
                 qPrintable(recorder.status().fault));
    }

    // A place, and what is said of it by those who write and those who read.
    void placeThatIsNoHistoryIsRefused_data()
    {
        addRows(R"(
            folder    | expected a file | expected a file
            none/in   | later: unable to open database file | there is no such file
            text      | file is not a database | file is not a database
            foreign   | is the database of something else | there is no history in it
            later     | is of version 9, which is later than this program's 1 | is of version 9, which is later than this program's 1
            locked    | later: attempt to write a readonly database | fine
            unread    | later: unable to open database file | unable to open database file
            empty     | fine | there is no history in it
            missing   | fine | there is no such file
            mysql://h/d | expected postgresql://user@host:port/database | expected postgresql://user@host:port/database
            postgresql://h | expected postgresql://user@host:port/database | expected postgresql://user@host:port/database)"_s);
    }

    void placeThatIsNoHistoryIsRefused()
    {
        const auto [name, toWriters, toReaders] = cells<3>();
        const QTemporaryDir folder;
        const bool isFile = !name.contains("//"_s);
        const QString place = isFile ? folder.filePath(name) : name;
        const auto make = [&](const QStringList& statements) {
            HistoryDatabase database(place, HistoryDatabase::Write);
            for (const QString& statement : statements)
                database.execute(statement);
        };
        if (name == "folder"_s) {
            QDir().mkdir(place);
        } else if (name == "text"_s || name == "empty"_s) {
            QFile file(place);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(name == "text"_s ? 5000 : 0, 'x'));
        } else if (name == "foreign"_s) {
            make({"DROP TABLE velmo_history"_s});
        } else if (name == "later"_s) {
            make({"UPDATE velmo_history SET version = 9"_s});
        } else if (name == "locked"_s || name == "unread"_s) {
            make({});
            const QFile::Permissions read = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
            QFile::setPermissions(place, name == "unread"_s ? QFile::Permissions() : read);
            QFile::setPermissions(folder.path(),
                                  read | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
        }
        const auto said = [&](const auto& open) {
            try {
                open();
            } catch (const Fault& fault) {
                return fault.message.mid(place.size() + 2);
            }
            return "fine"_s;
        };
        QString later; // what its status says, while it tries again
        // What nobody may write root may.
        const bool isRoot = geteuid() == 0;
        if (isRoot && (name == "locked"_s || name == "unread"_s))
            QCOMPARE(seteuid(65534), 0);
        const QString toReader = said([&] { History(place).now(0); });
        QString toWriter = said([&] {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            while (!recorder.status().isWriter && recorder.status().fault.isEmpty())
                QThread::msleep(10);
            later = recorder.status().fault.mid(place.size() + 2);
        });
        if (!later.isEmpty())
            toWriter = "later: "_s + later;
        if (isRoot)
            QCOMPARE(seteuid(0), 0);
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
        QCOMPARE(toReader, toReaders);
        QVERIFY2(toWriter.startsWith(toWriters), qPrintable(toWriter));
    }

    void conditionsOfNowAndOfAMonth_data() { addKinds(); }

    void conditionsOfNowAndOfAMonth()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        const QDate month(2026, 10, 1);
        const qint64 begin = month.startOfDay().toMSecsSinceEpoch();
        const qint64 end = month.addMonths(1).startOfDay().toMSecsSinceEpoch();
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            struct
            {
                qint64 time;
                Condition condition;
            } const changes[] = {
                {begin - day, Condition::Faulty},      {begin + day, Condition::Silent},
                {begin + 3 * day, Condition::Faulty},  {begin + 4 * day, Condition::OutOfOrder},
                {begin + 8 * day, Condition::Unknown}, {begin + 16 * day, Condition::Faulty},
                {end + day, Condition::Fine},          {end + 2 * day, Condition::Faulty}};
            quint64 message = 0;
            for (const auto& change : changes) {
                ++message;
                recorder.record(record("k1"_s, change.time, message, change.condition,
                                       QStringList{"b"_s, "a"_s}.mid(int(message % 2))));
            }
            recorder.record(record("k2"_s, begin + 15 * day, 1, Condition::Fine));
            recorder.record(record("k3"_s, begin - day, 1, Condition::Unknown));
        }
        const History history(place);
        const auto now = history.now(end + 3 * day);
        QCOMPARE(now.size(), 3);
        QCOMPARE(now["k1"_s].since, end + 2 * day);
        QCOMPARE(now["k1"_s].condition, Condition::Faulty);
        QCOMPARE(now["k1"_s].timesThisMonth, 1);
        QCOMPARE(now["k1"_s].faults, QStringList({"It is a."_s, "It is b."_s}));
        QCOMPARE(now["k2"_s].timesThisMonth, 1);
        const auto october = history.availability(month.addDays(9), end + 3 * day);
        QCOMPARE(october["k1"_s].silent, 2 * day);
        QCOMPARE(october["k1"_s].inService, 2 * day + (end - begin - 16 * day));
        QCOMPARE(october["k1"_s].known, october["k1"_s].inService + 6 * day);
        QCOMPARE(october["k2"_s].known, end - begin - 15 * day);
        QVERIFY(october.contains("k3"_s) && october["k3"_s].known == 0);
        QCOMPARE(history.availability(month, begin + 17 * day)["k2"_s].inService, 2 * day);
        QVERIFY(history.availability(month.addMonths(2), end + 3 * day).isEmpty());
    }

    // Pieces a day and in how many at once, days that are known and the level.
    void forecastHoldsTheTruthInNineOfTen_data()
    {
        addRows(R"(
            40  | 1  | 14 | 100
            40  | 1  | 14 | 10
            40  | 1  | 5  | 60
            300 | 10 | 14 | 2000
            300 | 10 | 7  | 200
            20  | 5  | 14 | 100)"_s);
    }

    void forecastHoldsTheTruthInNineOfTen()
    {
        const auto row = cells<4>();
        const double perDay = row[0].toDouble();
        const int atOnce = row[1].toInt();
        const int days = row[2].toInt();
        const qint64 level = row[3].toInt();
        std::mt19937 random(22); // NOLINT(cert-msc32-c, cert-msc51-cpp): the same each time
        constexpr int kiosks = 1000;
        int holds = 0;
        int said = 0;
        for (int kiosk = 0; kiosk < kiosks; ++kiosk) {
            const int opens = kiosk % 24; // for twelve hours, and busier every other day
            const auto used = [&](int at) {
                const bool isOpen = (at + opens + 24) % 24 < 12;
                const double factor = (at + opens + 240) / 24 % 2 == 0 ? 1.2 : 0.8;
                std::poisson_distribution<int> events(perDay / 12 / atOnce * factor);
                return isOpen ? events(random) * atOnce : 0;
            };
            std::vector<double> before;
            for (int i = 0; i < days * 24; ++i)
                before.push_back(used(days * 24 - 1 - i));
            const auto range = Forecast(before).usedUp(level);
            int until = 0;
            for (qint64 left = level; left > 0; ++until)
                left -= used(days * 24 + until);
            if (!range)
                continue;
            ++said;
            holds += range->earliest <= until && until - 1 <= range->latest ? 1 : 0;
        }
        QVERIFY2(said > kiosks * 9 / 10, qPrintable(QString::number(said)));
        QVERIFY2(holds > said * 85 / 100 && holds < said * 99 / 100,
                 qPrintable("%1 of %2"_s.arg(holds).arg(said)));
    }

    void whatIsDueIsSaidWhereItCanBe_data() { addKinds(); }

    void whatIsDueIsSaidWhereItCanBe()
    {
        QFETCH(QString, kind);
        const QString place = newPlace(kind);
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            KioskRecord scrapped = counted(start - day, 0);
            scrapped.kiosk = "k2"_s;
            recorder.record(scrapped);
            recorder.forget("k2"_s, start - 1);
            const auto at = [&](qint64 time, qint64 inserted, const QString& cassette,
                                qint64 level) {
                recorder.record(counted(time, inserted, cassette, level));
            };
            at(start - 10 * day, 0, "out"_s, 100);
            at(start - 10 * day + 1, 0, "present"_s, 100);
            at(start - 9 * day, 500, "full"_s, 100);
            at(start - 9 * day + 1, 500, "out"_s, 100);
            at(start - 9 * day + 2, 500, "present"_s, 100);
            qint64 level = 100;
            for (int i = 1; i <= 9 * 24; ++i) {
                level -= i % 2; // twelve a day
                if (i % 24 == 0)
                    level += 12; // filled in by hand
                at(start - 9 * day + i * hour, 500 + i, "present"_s, level);
            }
        }
        const std::vector<History::Due> due = History(place).due(start + 1);
        QStringList texts;
        for (const History::Due& each : due) {
            const auto inDays = [](const std::optional<qint64>& time) {
                return time ? QString::number(double(*time - start) / double(day), 'f', 1)
                            : QString();
            };
            texts += "%1 %2 %3 %4 %5 %6-%7 %8"_s.arg(each.channel)
                         .arg(each.denomination)
                         .arg(each.level)
                         .arg(each.capacity.value_or(0))
                         .arg(each.perDay, 0, 'f', 1)
                         .arg(inDays(each.earliest), inDays(each.latest), each.cannotSay);
        }
        // A day without payouts, then twelve a day, of which one was inserted again.
        QCOMPARE(
            texts,
            QStringList({"0 100 100 0 9.9 7.7-13.8 "_s, "-1 0 216 500 21.6 10.2-17.6 "_s,
                         "1 500 50 0 0.0 - Its level has not fallen in the last two weeks."_s}));
        for (const History::Due& each : History(place).due(start + 2 * day + hour)) {
            QVERIFY(!each.earliest && !each.latest);
            QCOMPARE(each.cannotSay, "Its level has not been told for more than a day."_s);
        }
        {
            HistoryRecorder recorder(place, "1/1"_s, "w1"_s);
            recorder.record(record("k1"_s, start + 2, 1, Condition::Silent, {"silent"_s}));
        }
        QVERIFY(History(place).due(start + day)[0].earliest);
        for (const History::Due& each : History(place).due(start + day + 3)) {
            QVERIFY(!each.earliest && !each.latest);
            QCOMPARE(each.cannotSay, "The kiosk has been silent for more than a day."_s);
        }
    }
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == workerOption)
        workUntilKilled(arguments[2]);
    tst_History test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_history.moc"
