// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest>

#include <array>

inline QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}

/// Makes the current test's data of a text: one row a line, its cells between vertical bars. The
/// test fetches the cells as QStringList "row", or gives each a name: const auto [a, b] =
/// cells<2>().
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

/// The cells of the current row; those that it lacks are null.
template <std::size_t Size>
std::array<QString, Size> cells()
{
    QFETCH(QStringList, row);
    std::array<QString, Size> cells;
    std::copy_n(row.cbegin(), std::min(Size, std::size_t(row.size())), cells.begin());
    return cells;
}
