// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "rowbatch.h"

#include "historydatabase.h"

namespace {

constexpr std::size_t atOnce = 50; // rows of a statement; SQLite of old takes 999 values

} // namespace

RowBatch::RowBatch(const QString& table, const QString& key, const QString& values,
                   const QString& conflict)
    : m_keySize(int(key.count(QLatin1Char(','))) + 1)
    , m_rowSize(m_keySize + int(values.count(QLatin1Char(','))) + 1)
    , m_sql(QStringLiteral("INSERT INTO %1(%2, %3) VALUES %5 ON CONFLICT(%2) %4")
                .arg(table, key, values, conflict))
{
}

QVariantList::iterator RowBatch::row(const QVariantList& key)
{
    QString text;
    for (const QVariant& part : key)
        text += part.toString() + QLatin1Char('\n');
    auto place = m_places.find(text);
    if (place == m_places.end()) {
        place = m_places.insert(text, m_rows.size());
        m_rows.push_back(key);
        for (int i = m_keySize; i < m_rowSize; ++i)
            m_rows.back() += QVariant();
    }
    return m_rows[*place].begin() + m_keySize;
}

int RowBatch::write(HistoryDatabase& database)
{
    const QString one =
        QLatin1Char('(') + HistoryDatabase::placeholders(m_rowSize) + QLatin1Char(')');
    int written = 0;
    for (std::size_t first = 0; first < m_rows.size();) {
        const std::size_t count = m_rows.size() - first < atOnce ? 1 : atOnce;
        QVariantList values;
        QString rows = one;
        for (std::size_t i = 0; i < count; ++i) {
            values += m_rows[first + i];
            if (i > 0)
                rows += QLatin1Char(',') + one;
        }
        written += database.run(m_sql.arg(rows), values).numRowsAffected();
        first += count;
    }
    clear();
    return written;
}

void RowBatch::clear()
{
    m_rows.clear();
    m_places.clear();
}
