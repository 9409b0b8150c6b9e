// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/fault.h"

#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <utility>

/// A connection to the database of a history, of the thread that made it. Every function throws
/// Error, which names the place, never its password.
class HistoryDatabase
{
public:
    enum Access {
        Read, ///< makes and changes nothing
        Write ///< makes what is missing, and brings an older version to this one
    };

    struct Error : Fault
    {
        bool mayPass; ///< it may be gone later
        bool isOfData; ///< it is of what was to be written, not of the database
    };

    /// @param place a file of SQLite or "postgresql://..."; what that does not say libpq finds
    /// where it always does
    HistoryDatabase(const QString& place, Access access);
    ~HistoryDatabase();
    HistoryDatabase(const HistoryDatabase&) = delete;
    HistoryDatabase& operator=(const HistoryDatabase&) = delete;

    bool isPostgres() const { return m_isPostgres; }

    /// Throws where the file that is open is no longer the one at the place: what is written to it
    /// is lost.
    void requirePlace() const;

    /// The clock of the machine that has the database, in milliseconds since 1970, as SQL.
    QString clock() const;

    /// All pairs of a group, in a text with blanks between all numbers, as SQL.
    QString pairs(const QString& time, const QString& number) const;

    /// Runs a statement that has no values and gives no rows, as often as it may be.
    void execute(const QString& sql);

    /// Runs a statement with these values for its "?". What it returns is good until the same one
    /// runs again.
    QSqlQuery& run(const QString& sql, const QVariantList& values = {});

    /// Runs the statement for all values, where its "%1" is a list of so many of them as fit.
    /// @param take is given each row
    template <typename Take>
    void select(const QString& sql, const QStringList& of, Take take)
    {
        for (int first = 0; first < of.size(); first += atOnce) {
            QVariantList values;
            for (int i = 0; i < atOnce; ++i)
                values += of[std::min(first + i, int(of.size()) - 1)];
            QSqlQuery& query = run(sql.arg(placeholders(atOnce)), values);
            while (query.next())
                take(query);
            query.finish();
        }
    }

    static QString placeholders(int count);

private:
    static constexpr int atOnce = 100;

    void openFile(Access access);
    void openServer();
    QSqlDatabase connection() const;
    [[noreturn]] void fail(const QSqlError& error) const;
    [[noreturn]] void refuse(const QString& why, bool mayPass = false, bool isOfData = false) const;
    int version();
    void migrate();

    const QString m_place;
    QString m_name; // of the place, without its password
    const bool m_isPostgres;
    const QString m_connection;
    std::pair<quint64, quint64> m_file{}; // device and number of the file that is open
    QHash<QString, QSqlQuery> m_statements;
};

/// What is done in one, or, unless it is committed, not at all.
class HistoryTransaction
{
public:
    explicit HistoryTransaction(HistoryDatabase& database);
    ~HistoryTransaction();
    HistoryTransaction(const HistoryTransaction&) = delete;
    HistoryTransaction& operator=(const HistoryTransaction&) = delete;

    void commit();

private:
    HistoryDatabase& m_database;
    bool m_isOpen = true;
};
