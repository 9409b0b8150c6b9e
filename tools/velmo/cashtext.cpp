// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "cashanswer.h"
#include "terminal/output.h"
#include "terminal/table.h"
#include "terminal/velmo.h"

namespace {

// When it was, on the clock of the log, and the line.
QString momentText(const QStringList& logs, const LogTime& time, qint64 position)
{
    const qint64 line = LogPosition::line(position);
    const QString place = logs.size() == 1
        ? Velmo::tr("line %1").arg(line)
        : Velmo::tr("%1 line %2").arg(logs.value(LogPosition::log(position))).arg(line);
    return time.isKnown()
        ? QStringLiteral("%1 %2 (%3)").arg(time.iso().left(10), time.clock(), place)
        : place;
}

QString periodText(const QStringList& logs, const KioskCash& kiosk, const CashPeriod& period)
{
    const QString from = momentText(logs, period.from, period.fromPosition);
    const QString to = momentText(logs, period.to, period.toPosition);
    return (!period.isOpen    ? Velmo::tr("Period %1: from %2 to its collection, %3")
                : kiosk.isCut ? Velmo::tr("Period %1: from %2 to the time that is asked for, %3")
                              : Velmo::tr("Period %1: from %2 to the end, %3"))
               .arg(QString::number(period.number), from, to)
        + QStringLiteral("; ") + Velmo::tr("%n sessions", nullptr, period.sessions);
}

QString tableOf(const CashPeriod& period)
{
    QList<QStringList> rows;
    const QStringList notes = period.notes();
    QString place;
    for (const CashRow& row : period.rows) {
        QStringList marks;
        for (const QString& why : row.why)
            marks += QString::number(notes.indexOf(why) + 1);
        QStringList cells = row.cells();
        const QString name = cells.at(0);
        if (name == place)
            cells[0].clear();
        rows += cells
            + QStringList{marks.isEmpty()
                              ? QString()
                              : QStringLiteral("[%1]").arg(marks.join(QLatin1Char(',')))};
        place = name;
    }
    QString unvalued;
    if (period.ofAnyValue > 0) {
        unvalued = Velmo::tr("Pieces of unknown value that may lie in the cassette: %1")
                       .arg(period.ofAnyValue)
            + QLatin1Char('\n');
    }
    if (rows.isEmpty())
        return unvalued.isEmpty() ? Velmo::tr("Of money the log tells nothing.") + QLatin1Char('\n')
                                  : unvalued;
    QStringList columns = CashRow::columns();
    for (int i = 1; i < columns.size(); ++i) {
        if (i != 2) // the currency
            columns[i].prepend(QLatin1Char('>'));
    }
    QString text = formatTable(columns + QStringList{QString()}, rows);
    for (int i = 0; i < notes.size(); ++i)
        text += wrapped(QStringLiteral("  [%1] %2").arg(i + 1).arg(notes.at(i)), 6, outputWidth());
    return text + unvalued;
}

QString contradictionsText(const CashAnswer& answer, const KioskCash& kiosk)
{
    if (kiosk.contradictions.empty() && !kiosk.areCountsRight())
        return Velmo::tr("In the logs themselves everything adds up.") + QLatin1Char('\n');
    if (kiosk.contradictions.empty())
        return Velmo::tr("Everything adds up.") + QLatin1Char('\n');
    QString text = Velmo::tr("What does not add up:") + QLatin1Char('\n');
    for (const Contradiction& found : kiosk.contradictions) {
        const QString log = answer.logs.value(LogPosition::log(found.line));
        const QString place = answer.logs.size() == 1 ? QString() : log + QStringLiteral(": ");
        text += wrapped(printable(QStringLiteral("  ") + place + found.text()), 4, outputWidth());
    }
    return text;
}

QString countsText(const CashAnswer& answer, const KioskCash& kiosk)
{
    QString text;
    QList<QStringList> rows;
    for (const CashDifference& difference : kiosk.differences) {
        const CashCount& count = difference.count;
        rows += QStringList{QString::number(count.device), QString::number(difference.period),
                            difference.placeName(),        QString::number(count.denomination),
                            difference.expected.text(),    QString::number(count.count),
                            difference.verdict()};
    }
    const QString right(QLatin1Char('>'));
    text += formatTable({right + Velmo::tr("Device"), right + Velmo::tr("Period"),
                         Velmo::tr("Place"), right + Velmo::tr("Face value"),
                         right + Velmo::tr("Expected"), right + Velmo::tr("Counted"), QString()},
                        rows);
    for (const CashDifference& missing : kiosk.notCounted) {
        text += Velmo::tr("Not counted: device %1, period %2, %3, %4; expected: %5")
                    .arg(QString::number(missing.count.device), QString::number(missing.period),
                         missing.placeName(), QString::number(missing.count.denomination),
                         missing.expected.text())
            + QLatin1Char('\n');
    }
    for (int i = 0; i < int(kiosk.differences.size()); ++i) {
        const CashDifference& difference = kiosk.differences.at(size_t(i));
        if (difference.difference == 0)
            continue;
        text += QLatin1Char('\n')
            + Velmo::tr("%1, %2 of %3: %4. What can explain it:")
                  .arg(rows.at(i).at(2), Velmo::tr("pieces"), rows.at(i).at(3), rows.at(i).at(6))
            + QLatin1Char('\n');
        if (difference.explanations.empty())
            text += QStringLiteral("  - ") + Velmo::tr("nothing in the logs") + QLatin1Char('\n');
        for (const CashDoubt::Example& example : difference.explanations) {
            LogPlace place = example.place;
            place.line = LogPosition::line(place.line);
            const QString log = answer.logs.size() == 1
                ? QString()
                : answer.logs.value(LogPosition::log(example.place.line)) + QStringLiteral(": ");
            text += wrapped(printable(QStringLiteral("  - ") + log + place.place()
                                      + QStringLiteral(": ") + example.text),
                            4, outputWidth());
        }
    }
    return text;
}

} // namespace

QString cashText(const CashAnswer& answer)
{
    QString text;
    if (answer.devices == 0)
        text = Velmo::tr("The logs tell of no device.") + QLatin1Char('\n');
    for (const KioskCash& kiosk : answer.kiosks) {
        if (kiosk.periods.empty())
            continue;
        if (!kiosk.kiosk.isEmpty())
            text += Velmo::tr("Kiosk %1").arg(printable(kiosk.kiosk)) + QStringLiteral("\n\n");
        const CashPeriod* before = nullptr;
        for (const CashPeriod& period : kiosk.periods) {
            if (!before || !before->isOfSameDevice(period))
                text += printable(period.deviceName) + QLatin1Char('\n');
            text += printable(periodText(answer.logs, kiosk, period)) + QLatin1Char('\n')
                + tableOf(period);
            if (period.cash)
                text += Velmo::tr("The device says of its cash: %1").arg(*period.cash)
                    + QLatin1Char('\n');
            text += QLatin1Char('\n');
            before = &period;
        }
        if (!kiosk.differences.empty())
            text += countsText(answer, kiosk) + QLatin1Char('\n');
        text += contradictionsText(answer, kiosk) + QLatin1Char('\n');
    }
    for (const QString& note : answer.notes)
        text += printable(note) + QLatin1Char('\n');
    return text;
}
