// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/table.h"

#include <QVector>

namespace {

// Cuts a text into lines that are as long as there is room, but not too short to be read; at a
// space where there is one.
QString folded(const QString& text, int indent, int width)
{
    const int room = qMax(width - indent, 20);
    QStringList lines;
    QString rest = text;
    while (rest.size() > room) {
        const auto space = rest.lastIndexOf(QLatin1Char(' '), room);
        lines += rest.left(space > 0 ? space : room);
        rest = rest.mid(space > 0 ? space + 1 : room);
    }
    lines += rest;
    return lines.join(QLatin1Char('\n') + QString(indent, QLatin1Char(' ')));
}

} // namespace

QString formatTable(const QStringList& head, const QList<QStringList>& rows, int width)
{
    QVector<int> widths;
    QVector<bool> numeric;
    QStringList headings;
    for (const QString& heading : head) {
        numeric += heading.startsWith(QLatin1Char('>'));
        headings += numeric.constLast() ? heading.mid(1) : heading;
        widths += static_cast<int>(headings.constLast().size());
    }
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), static_cast<int>(row.at(i).size()));
    }

    QString table;
    const auto addLine = [&](const QStringList& cells) {
        QString line;
        for (int i = 0; i < cells.size(); ++i) {
            const bool isTooLong = width > 0 && i + 1 == cells.size() && !numeric.at(i)
                && line.size() + cells.at(i).size() > width;
            if (isTooLong) {
                line += folded(cells.at(i), int(line.size()), width);
                break;
            }
            line += numeric.at(i) ? cells.at(i).rightJustified(widths.at(i))
                                  : cells.at(i).leftJustified(widths.at(i));
            line += QStringLiteral("  ");
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        table += line + QLatin1Char('\n');
    };
    addLine(headings);
    for (const QStringList& row : rows)
        addLine(row);
    return table;
}

QString formatList(const QList<QStringList>& rows)
{
    int width = 0;
    for (const QStringList& row : rows)
        width = qMax(width, int(row.constFirst().size()));
    QString list;
    for (const QStringList& row : rows) {
        const QString name = row.constFirst().leftJustified(width);
        list += wrapped(QStringLiteral("  %1  ").arg(name) + row.constLast(), width + 4);
    }
    return list;
}

QString wrapped(const QString& text, int indent, int width)
{
    if (width == 0)
        return text + QLatin1Char('\n');
    QString result;
    int column = 0;
    const QStringList words = text.split(QLatin1Char(' '));
    for (const QString& word : words) {
        const bool isFirst = column == 0;
        if (column > indent && column + 1 + word.size() > width) {
            result += QLatin1Char('\n') + QString(indent, QLatin1Char(' ')) + word;
            column = indent + int(word.size());
        } else {
            result += (isFirst ? QString() : QStringLiteral(" ")) + word;
            column += int(word.size()) + 1;
        }
    }
    return result + QLatin1Char('\n');
}
