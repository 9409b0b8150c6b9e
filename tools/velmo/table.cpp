#include "table.h"

#include <QVector>

QString formatTable(const QStringList& head, const QList<QStringList>& rows)
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
