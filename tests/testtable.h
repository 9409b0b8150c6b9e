#pragma once

#include <QtTest>

inline QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

/// Makes the current test's data of a text: one row a line, its cells between vertical bars. The
/// test fetches the cells as QStringList "row".
inline void addRows(const QString& table)
{
    QTest::addColumn<QStringList>("row");
    for (const QString& line : table.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        QStringList cells;
        for (const QString& cell : line.split(QLatin1Char('|')))
            cells += cell.trimmed();
        QTest::newRow(line.simplified().toUtf8().constData()) << cells;
    }
}
