// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "forecast.h"
#include "history.h"
#include "historydatabase.h"
#include "historyrecorder.h"
#include "testtable.h"
#include "text/fault.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>

#include <random>
#include <sys/wait.h>
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
};

QTEST_GUILESS_MAIN(tst_History)

#include "tst_history.moc"
