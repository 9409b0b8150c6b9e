// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleettable.h"

#include "terminal/output.h"
#include "terminal/table.h"

#include <QDateTime>

#include <algorithm>
#include <numeric>

namespace {

constexpr int longestName = 40; // in the table; --json has all of it
constexpr int narrowWidth = 100;
constexpr int shortestFault = 20;

QString elided(const QString& text, int length)
{
    return text.size() > length ? text.left(length - 3) + QStringLiteral("...") : text;
}

int sum(const ConditionCounts& counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0);
}

// "12 silent, 340 fine"
QString countsText(const ConditionCounts& counts)
{
    QStringList parts;
    for (int i = KioskSummary::Unknown; i <= KioskSummary::Fine; ++i) {
        if (counts[size_t(i)] > 0 || i == KioskSummary::Fine) {
            //: How many, and of which condition: 3 faulty.
            parts += Velmo::tr("%1 %2")
                         .arg(counts[size_t(i)])
                         .arg(conditionText(KioskSummary::Condition(i)));
        }
    }
    return parts.join(QStringLiteral(", "));
}

std::optional<qint64> ifKnown(qint64 time)
{
    return time == KioskSummary::noTime ? std::optional<qint64>() : time;
}

// Cuts what is wrong where the terminal has no room for it; how many more there are stays.
void fit(QList<QStringList>& rows, const QStringList& head, int width)
{
    int taken = 0;
    for (int column = 0; column + 1 < head.size(); ++column) {
        qsizetype longest = head.at(column).size();
        for (const QStringList& row : rows)
            longest = std::max<qsizetype>(longest, row.at(column).size());
        taken += int(longest) + 2;
    }
    const int room = std::max(width - taken, shortestFault);
    for (QStringList& row : rows) {
        QString& text = row.last();
        const auto more = text.lastIndexOf(QLatin1String("  +"));
        const QString ending = more < 0 ? QString() : text.mid(more);
        text = elided(text.left(text.size() - ending.size()), room - int(ending.size())) + ending;
    }
}

// Rows beside the heading, the line of moreText(), an empty one, and what follows them.
int roomFor(int lines, const QString& ending)
{
    return std::max(lines - 3 - int(ending.count(QLatin1Char('\n'))), 1);
}

QString moreText(int count)
{
    return Velmo::tr("%n more for which there is no room here", nullptr, count) + QLatin1Char('\n');
}

} // namespace

QStringList FleetTable::countKeys()
{
    return {QStringLiteral("reason"), QStringLiteral("region")};
}

QString FleetTable::sinceText(const FleetKiosk& kiosk, bool isNarrow) const
{
    const auto since = m_memory.since(kiosk);
    if (!since)
        return {};
    const QString text = durationText(QDateTime::currentMSecsSinceEpoch() - since->began);
    if (since->timesThisMonth < 2)
        return text;
    return isNarrow
        ? QStringLiteral("%1, %2x").arg(text).arg(since->timesThisMonth)
        : Velmo::tr("%1, %n times this month", nullptr, since->timesThisMonth).arg(text);
}

QStringList FleetTable::rowOf(const FleetKiosk& kiosk, bool isNarrow) const
{
    QString fault;
    if (!kiosk.faults.empty())
        fault = printable(kiosk.faults.front().text);
    if (kiosk.faults.size() > 1 && !m_hasAllFaults)
        fault += QStringLiteral("  +%1").arg(kiosk.faults.size() - 1);
    return {elided(printable(kiosk.name), longestName), conditionText(kiosk.condition),
            m_memory.isThere() ? sinceText(kiosk, isNarrow) : timeText(ifKnown(kiosk.time)), fault};
}

QString FleetTable::text(const Fleet& fleet, int most) const
{
    const int width = outputWidth();
    const bool isNarrow = width > 0 && width < narrowWidth;
    const QStringList head{Velmo::tr("Kiosk"), Velmo::tr("Condition"),
                           m_memory.isThere() ? Velmo::tr("For how long") : Velmo::tr("Last state"),
                           Velmo::tr("What is wrong")};
    const std::vector<FleetKiosk> kiosks = m_selection.listed(fleet);
    const QString ending = totals(fleet);
    const int room = roomFor(most, ending);
    size_t shown = 0;
    QList<QStringList> rows;
    for (const FleetKiosk& kiosk : kiosks) {
        const size_t lines = m_hasAllFaults ? std::max<size_t>(kiosk.faults.size(), 1) : 1;
        if (most > 0 && rows.size() + int(lines) > room)
            break;
        ++shown;
        rows += rowOf(kiosk, isNarrow);
        for (size_t i = 1; i < lines; ++i)
            rows += QStringList{QString(), QString(), QString(), printable(kiosk.faults[i].text)};
    }
    if (width > 0 && (most > 0 || !m_hasAllFaults))
        fit(rows, head, width);
    QString text;
    if (!rows.isEmpty())
        text = formatTable(head, rows, width);
    if (shown < kiosks.size())
        text += moreText(int(kiosks.size() - shown));
    return text.isEmpty() ? ending : text + QLatin1Char('\n') + ending;
}

QString FleetTable::totals(const Fleet& fleet) const
{
    const int width = outputWidth();
    const QString all =
        wrapped(Velmo::tr("%n kiosks: %1", nullptr, fleet.size()).arg(::countsText(fleet.counts())),
                0, width);
    if (m_selection.isAll())
        return all;
    ConditionCounts selected{};
    for (const FleetKiosk& kiosk : fleet.kiosks()) {
        if (m_selection.has(kiosk))
            ++selected[kiosk.condition];
    }
    return all
        + wrapped(
               Velmo::tr("%n kiosks selected: %1", nullptr, sum(selected))
                       .arg(::countsText(selected))
                   + QStringLiteral("; ")
                   + Velmo::tr("%n hidden by the selection", nullptr, fleet.size() - sum(selected)),
               0, width);
}

FleetTable::Counts FleetTable::countsBy(const Fleet& fleet, const QString& what) const
{
    const bool isRegion = what == QLatin1String("region");
    Counts counts(isNaturallyLess);
    for (const FleetKiosk& kiosk : fleet.kiosks()) {
        if (!m_selection.has(kiosk))
            continue;
        QStringList keys;
        if (isRegion)
            keys += regionOf(kiosk.name);
        for (size_t i = 0; i < kiosk.faults.size() && !isRegion; ++i)
            keys += kiosk.faults[i].reason;
        keys.removeDuplicates();
        for (const QString& key : std::as_const(keys))
            ++counts[key][kiosk.condition];
    }
    return counts;
}

QString FleetTable::countsText(const Fleet& fleet, const QString& what, int most) const
{
    QStringList head{what == QLatin1String("region") ? Velmo::tr("Region") : Velmo::tr("Reason"),
                     QLatin1Char('>') + Velmo::tr("Kiosks")};
    for (int i = KioskSummary::Unknown; i <= KioskSummary::Fine; ++i)
        head += QLatin1Char('>') + conditionText(KioskSummary::Condition(i));
    QList<QStringList> rows;
    const Counts all = countsBy(fleet, what);
    for (const auto& [key, counts] : all) {
        QStringList row{key.isEmpty() ? Velmo::tr("none") : elided(printable(key), longestName),
                        QString::number(sum(counts))};
        for (const int count : counts)
            row += QString::number(count);
        rows += row;
    }
    if (what == QLatin1String("reason")) {
        std::stable_sort(rows.begin(), rows.end(), [](const QStringList& a, const QStringList& b) {
            return a.at(1).toInt() > b.at(1).toInt();
        });
    }
    const QString ending = totals(fleet);
    const int hidden = most > 0 ? std::max(int(rows.size()) - roomFor(most, ending), 0) : 0;
    QString text;
    if (!rows.isEmpty())
        text = formatTable(head, rows.mid(0, rows.size() - hidden));
    if (hidden > 0)
        text += moreText(hidden);
    return text.isEmpty() ? ending : text + QLatin1Char('\n') + ending;
}

QByteArray FleetTable::lineOf(const FleetKiosk& kiosk) const
{
    const auto since = m_memory.since(kiosk);
    const auto number = [](int of) {
        return of == KioskFault::noDevice ? JsonText::null() : JsonText(of);
    };
    return JsonText::object(
        {{"kind", QStringLiteral("kiosk")},
         {"kiosk", kiosk.name},
         {"condition", QString(QLatin1String(KioskSummary::name(kiosk.condition)))},
         {"time", KioskSummary::momentText(kiosk.time)},
         {"faults",
          JsonText::list(kiosk.faults,
                         [](const KioskFault& fault) { return JsonText(fault.text); })},
         {"causes",
          JsonText::list(kiosk.faults,
                         [&](const KioskFault& fault) {
                             return JsonText::object({{"device", number(fault.device)},
                                                      {"thread", number(fault.thread)},
                                                      {"reason", fault.reason}});
                         })},
         {"region", regionOf(kiosk.name)},
         {"since",
          KioskSummary::momentText(since ? std::optional<qint64>(since->began) : std::nullopt)},
         {"times_this_month",
          since && since->timesThisMonth > 0 ? JsonText(since->timesThisMonth)
                                             : JsonText::null()}});
}

QByteArray FleetTable::json(const Fleet& fleet, const QString& count) const
{
    QByteArray lines;
    if (count.isEmpty()) {
        for (const FleetKiosk& kiosk : m_selection.listed(fleet))
            lines += lineOf(kiosk) + '\n';
    } else {
        const Counts all = countsBy(fleet, count);
        for (const auto& [key, counts] : all) {
            lines +=
                JsonText::object({{"kind", QStringLiteral("count")},
                                  {count == QLatin1String("region") ? "region" : "reason", key},
                                  {"kiosks", sum(counts)}})
                + '\n';
        }
    }
    const ConditionCounts counts = fleet.counts();
    const auto selected =
        std::count_if(fleet.kiosks().begin(), fleet.kiosks().end(),
                      [this](const FleetKiosk& kiosk) { return m_selection.has(kiosk); });
    return lines
        + JsonText::object({{"kind", QStringLiteral("summary")},
                            {"kiosks", fleet.size()},
                            {"unknown", counts[KioskSummary::Unknown]},
                            {"silent", counts[KioskSummary::Silent]},
                            {"out_of_order", counts[KioskSummary::OutOfOrder]},
                            {"faulty", counts[KioskSummary::Faulty]},
                            {"fine", counts[KioskSummary::Fine]},
                            {"selected", qint64(selected)}})
        + '\n';
}
