// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <vector>

class HistoryDatabase;

/// Rows of one table that are to be written, each once, many with one statement.
class RowBatch
{
public:
    /// @param key the columns of the key, separated by commas
    /// @param values the other columns
    /// @param conflict what to do with a row that is there, as SQL
    RowBatch(const QString& table, const QString& key, const QString& values,
             const QString& conflict);

    /// The values of the row, which are null for a new one. They are good until the next call.
    QVariantList::iterator row(const QVariantList& key);

    /// Writes all, in the order in which they were first asked for, and forgets them.
    /// @return how many rows there are that say so now
    int write(HistoryDatabase& database);

    int size() const { return int(m_rows.size()); }
    void clear();

private:
    const int m_keySize;
    const int m_rowSize;
    const QString m_sql;
    std::vector<QVariantList> m_rows;
    QHash<QString, std::size_t> m_places; // of a key's text
};
