// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historydatabase.h"

#include "historyschema.h"
#include "text/diagnosis.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <sys/stat.h>

namespace {

// An unreachable server is noticed within seconds, and one that stands still in a transaction does
// not keep others waiting.
constexpr char patience[] = "connect_timeout=3;tcp_user_timeout=5000;keepalives_idle=5;"
                            "keepalives_interval=2;keepalives_count=3";
constexpr char sessionSettings[] =
    "SET idle_in_transaction_session_timeout = '10s'; SET client_min_messages = error;"
    " SET standard_conforming_strings = on";

// Of workers that start at once one makes the tables. Any number that nobody else locks.
constexpr char migrationLock[] = "SELECT pg_advisory_xact_lock(7305807)";

bool isServer(const QString& place)
{
    return place.startsWith(QLatin1String("postgresql://"))
        || place.startsWith(QLatin1String("postgres://"));
}

// What is told of the place: no password and no options.
QString nameOf(const QString& place)
{
    if (!isServer(place))
        return place;
    const QString host = QUrlQuery(QUrl(place)).queryItemValue(QStringLiteral("host"));
    return QUrl(place).toDisplayString(QUrl::RemovePassword | QUrl::RemoveQuery
                                       | QUrl::RemoveFragment)
        + (host.isEmpty() ? host : QLatin1String("?host=") + host);
}

// With values for its "?", as PostgreSQL has them.
QString withValues(const QString& sql, const QVariantList& values)
{
    QString text;
    int at = 0;
    for (const QVariant& value : values) {
        const int next = int(sql.indexOf(QLatin1Char('?'), at));
        const QString word = value.toString();
        text += QStringView(sql).mid(at, next - at).toString();
        if (value.isNull())
            text += QLatin1String("NULL");
        else if (value.userType() != QMetaType::QString)
            text += word;
        else
            text += QLatin1Char('\'')
                + QString(word).replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\'');
        at = next + 1;
    }
    return text + QStringView(sql).mid(at).toString();
}

// Which file is at a place, as device and number; zeroes for none.
std::pair<quint64, quint64> fileAt(const QString& place)
{
    struct stat file
    {
    };
    return stat(QFile::encodeName(place).constData(), &file) == 0
        ? std::pair<quint64, quint64>(file.st_dev, file.st_ino)
        : std::pair<quint64, quint64>();
}

QString newConnection()
{
    static std::atomic<int> count{0};
    return QStringLiteral("velmo_history_%1").arg(++count);
}

} // namespace

HistoryDatabase::HistoryDatabase(const QString& place, Access access)
    : m_place(place)
    , m_name(nameOf(place))
    , m_isPostgres(isServer(place))
    , m_connection(newConnection())
{
    const QString driver = m_isPostgres ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    if (!QSqlDatabase::isDriverAvailable(driver))
        refuse(Diagnosis::tr("Qt's driver %1 is not installed").arg(driver));
    QSqlDatabase::addDatabase(driver, m_connection);
    try {
        if (m_isPostgres)
            openServer();
        else
            openFile(access);
        if (access == Write)
            migrate();
        else if (version() == 0)
            refuse(Diagnosis::tr("there is no history in it"));
    } catch (const Error&) {
        m_statements.clear();
        QSqlDatabase::removeDatabase(m_connection);
        throw;
    }
}

HistoryDatabase::~HistoryDatabase()
{
    m_statements.clear();
    QSqlDatabase::removeDatabase(m_connection);
}

void HistoryDatabase::openFile(Access access)
{
    if (m_place.contains(QLatin1String("://")))
        refuse(Diagnosis::tr("expected postgresql://user@host:port/database"));
    const QFileInfo file(m_place);
    if (m_place.isEmpty() || file.isDir())
        refuse(Diagnosis::tr("expected a file"));
    if (access == Read && !file.exists())
        refuse(Diagnosis::tr("there is no such file"));
    QSqlDatabase database = connection();
    database.setDatabaseName(m_place);
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000");
    if (access == Read)
        options += QLatin1String(";QSQLITE_OPEN_READONLY");
    database.setConnectOptions(options);
    if (!database.open()) // what the file has is not looked at yet
        refuse(database.lastError().databaseText(), /*mayPass=*/true);
    if (access == Write) {
        execute(QStringLiteral("PRAGMA journal_mode=WAL"));
        execute(QStringLiteral("PRAGMA synchronous=NORMAL"));
        m_file = fileAt(m_place);
        return;
    }
    QSqlQuery look(database);
    if (look.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))
        || QFileInfo::exists(m_place + QLatin1String("-wal"))) {
        return;
    }
    // Where nothing may be written and nobody writes, as on a medium that cannot be written to.
    look.finish();
    database.close();
    database.setDatabaseName(
        QString::fromLatin1(QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded())
        + QLatin1String("?immutable=1"));
    database.setConnectOptions(options + QLatin1String(";QSQLITE_OPEN_URI"));
    if (!database.open())
        fail(database.lastError());
}

void HistoryDatabase::requirePlace() const
{
    if (!m_isPostgres && fileAt(m_place) != m_file)
        refuse(Diagnosis::tr("the file was removed or replaced"), /*mayPass=*/true);
}

void HistoryDatabase::openServer()
{
    const QUrl url(m_place);
    if (!url.isValid() || url.path().size() < 2)
        refuse(Diagnosis::tr("expected postgresql://user@host:port/database"));
    QSqlDatabase database = connection();
    database.setDatabaseName(url.path().mid(1));
    database.setHostName(url.host());
    database.setUserName(url.userName(QUrl::FullyDecoded));
    database.setPassword(url.password(QUrl::FullyDecoded));
    if (url.port() != -1)
        database.setPort(url.port());
    QString options = QLatin1String(patience);
    const auto items = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    for (const auto& [key, value] : items) {
        if (key == QLatin1String("host"))
            database.setHostName(value);
        else
            options += QStringLiteral(";%1=%2").arg(key, value);
    }
    database.setConnectOptions(options);
    if (!database.open())
        fail(database.lastError());
    execute(QLatin1String(sessionSettings));
}

QSqlDatabase HistoryDatabase::connection() const
{
    return QSqlDatabase::database(m_connection, false);
}

QString HistoryDatabase::clock() const
{
    return m_isPostgres
        ? QStringLiteral("CAST(extract(epoch FROM clock_timestamp()) * 1000 AS BIGINT)")
        : QStringLiteral("CAST((julianday('now') - 2440587.5) * 86400000 AS INTEGER)");
}

void HistoryDatabase::execute(const QString& sql)
{
    QSqlQuery query(connection());
    if (!query.exec(sql))
        fail(query.lastError());
}

QString HistoryDatabase::pairs(const QString& time, const QString& number) const
{
    return (m_isPostgres ? QStringLiteral("string_agg(%1 || ' ' || %2, ' ')")
                         : QStringLiteral("group_concat(%1 || ' ' || %2, ' ')"))
        .arg(time, number);
}

// Of PostgreSQL the values stand in the text: Qt warns of every prepared statement that is left
// when the connection is lost.
QSqlQuery& HistoryDatabase::run(const QString& sql, const QVariantList& values)
{
    auto found = m_statements.find(sql);
    if (found == m_statements.end()) {
        QSqlQuery query(connection());
        query.setForwardOnly(true);
        if (!m_isPostgres && !query.prepare(sql))
            fail(query.lastError());
        found = m_statements.insert(sql, query);
    }
    for (int i = 0; i < values.size() && !m_isPostgres; ++i)
        found->bindValue(i, values[i]);
    if (!(m_isPostgres ? found->exec(withValues(sql, values)) : found->exec()))
        fail(found->lastError());
    return *found;
}

QString HistoryDatabase::placeholders(int count)
{
    QString list = QStringLiteral("?");
    for (int i = 1; i < count; ++i)
        list += QLatin1String(",?");
    return list;
}

void HistoryDatabase::fail(const QSqlError& error) const
{
    // Of SQLite's faults these pass: that another process is writing, what is of the disk, and that
    // the file may not be opened or written.
    constexpr int passing[] = {3, 5, 8, 10, 13, 14};
    constexpr int ofData[] = {18, 19, 20}; // too big, against a constraint, of another type
    const QString code = error.nativeErrorCode();
    const int number = code.toInt() & 0xff;
    // PostgreSQL's codes begin with a class: values, constraints, limits.
    const bool isOfData = m_isPostgres
        ? QStringList{QStringLiteral("22"), QStringLiteral("23"), QStringLiteral("54")}.contains(
            code.left(2))
        : std::find(std::begin(ofData), std::end(ofData), number) != std::end(ofData);
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    refuse(text.section(QLatin1Char('\n'), 0, 0).trimmed(),
           m_isPostgres
               || std::find(std::begin(passing), std::end(passing), number) != std::end(passing),
           isOfData);
}

void HistoryDatabase::refuse(const QString& why, bool mayPass, bool isOfData) const
{
    throw Error{{QStringLiteral("%1: %2").arg(m_name, why)}, mayPass, isOfData};
}

int HistoryDatabase::version()
{
    QSqlQuery& table = run(
        m_isPostgres
            ? QStringLiteral(
                "SELECT count(*) FROM pg_class WHERE oid = to_regclass('velmo_history')")
            : QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name = 'velmo_history'"));
    const bool exists = table.next() && table.value(0).toInt() > 0;
    table.finish();
    if (!exists)
        return 0;
    QSqlQuery& query = run(QStringLiteral("SELECT version FROM velmo_history"));
    const int version = query.next() ? query.value(0).toInt() : 0;
    query.finish();
    if (version > HistorySchema::version) {
        refuse(Diagnosis::tr("is of version %1, which is later than this program's %2")
                   .arg(version)
                   .arg(HistorySchema::version));
    }
    return version;
}

void HistoryDatabase::migrate()
{
    if (version() == HistorySchema::version) {
        HistoryTransaction(*this).commit(); // which shows whether it can be written to
        return;
    }
    HistoryTransaction transaction(*this);
    if (m_isPostgres)
        execute(QLatin1String(migrationLock));
    const int present = version();
    if (!m_isPostgres && present == 0) {
        QSqlQuery& tables = run(QStringLiteral("SELECT count(*) FROM sqlite_master"));
        const bool isForeign = tables.next() && tables.value(0).toInt() > 0;
        tables.finish();
        if (isForeign)
            refuse(Diagnosis::tr("is the database of something else"));
    }
    const QLatin1String inOrder(m_isPostgres ? "" : " WITHOUT ROWID");
    for (const char* const step : HistorySchema::stepsFrom(present))
        execute(QString(QLatin1String(step)).replace(QLatin1String("%1"), inOrder));
    run(QStringLiteral("DELETE FROM velmo_history"));
    run(QStringLiteral("INSERT INTO velmo_history(version) VALUES (?)"), {HistorySchema::version});
    transaction.commit();
}

HistoryTransaction::HistoryTransaction(HistoryDatabase& database)
    : m_database(database)
{
    // SQLite: no other process writes between what is read and what is written.
    m_database.execute(database.isPostgres() ? QStringLiteral("BEGIN")
                                             : QStringLiteral("BEGIN IMMEDIATE"));
}

HistoryTransaction::~HistoryTransaction()
{
    if (!m_isOpen)
        return;
    try {
        m_database.execute(QStringLiteral("ROLLBACK"));
    } catch (const HistoryDatabase::Error&) { // the connection is gone, and with it all of this
    }
}

void HistoryTransaction::commit()
{
    m_database.execute(QStringLiteral("COMMIT"));
    m_isOpen = false;
}
