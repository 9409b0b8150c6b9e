// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "cashanswer.h"

#include "answerjson.h"
#include <QRegularExpression>

namespace {

template <typename Value>
JsonText jsonOf(const std::optional<Value>& value)
{
    return value ? JsonText(*value) : JsonText::null();
}

JsonText jsonOf(const QString& text)
{
    return text.isEmpty() ? JsonText::null() : JsonText(text);
}

JsonText jsonOf(const PieceRange& range)
{
    return JsonText::object({{"min", range.min}, {"max", jsonOf(range.max)}});
}

JsonText jsonOf(const QStringList& logs, const KioskCash& kiosk, const CashPeriod& period)
{
    return JsonText::object({{"kind", QStringLiteral("period")},
                             {"kiosk", jsonOf(kiosk.kiosk)},
                             {"period", period.number},
                             {"device", period.device},
                             {"thread", period.thread},
                             {"name", period.deviceName},
                             {"from", jsonOf(period.from)},
                             {"to", jsonOf(period.to)},
                             {"from_log", logs.value(LogPosition::log(period.fromPosition))},
                             {"to_log", logs.value(LogPosition::log(period.toPosition))},
                             {"from_line", LogPosition::line(period.fromPosition)},
                             {"to_line", LogPosition::line(period.toPosition)},
                             {"sessions", period.sessions},
                             {"open", period.isOpen},
                             {"of_unknown_value", period.ofAnyValue},
                             {"cash", jsonOf(period.cash)}});
}

JsonText jsonOf(const KioskCash& kiosk, const CashPeriod& period, const CashRow& row)
{
    const bool isChannel = row.place == CashPlace::Channel;
    return JsonText::object({{"kind", QStringLiteral("place")},
                             {"kiosk", jsonOf(kiosk.kiosk)},
                             {"period", period.number},
                             {"device", period.device},
                             {"thread", period.thread},
                             {"place", placeKey(row.place)},
                             {"channel", isChannel ? JsonText(row.channel) : JsonText::null()},
                             {"denomination", row.kind.denomination},
                             {"currency", jsonOf(row.kind.currency)},
                             {"bill_type", jsonOf(row.kind.billType)},
                             {"opening", jsonOf(row.flow.opening)},
                             {"in", jsonOf(row.flow.in)},
                             {"out", jsonOf(row.flow.out)},
                             {"moved", jsonOf(row.flow.moved)},
                             {"now", jsonOf(row.now)},
                             {"filled", row.flow.filled},
                             {"certainty", row.now.certainty()},
                             {"why", JsonText::list(row.why)}});
}

JsonText jsonOf(const QStringList& logs, const KioskCash& kiosk, const CashDifference& difference)
{
    const JsonText reasons =
        JsonText::list(difference.explanations, [&](const CashDoubt::Example& example) {
            return JsonText::object({{"log", logs.value(LogPosition::log(example.place.line))},
                                     {"session", example.place.session},
                                     {"line", LogPosition::line(example.place.line)},
                                     {"text", example.text}});
        });
    return JsonText::object({{"kind", QStringLiteral("counted")},
                             {"kiosk", jsonOf(kiosk.kiosk)},
                             {"device", difference.count.device},
                             {"thread", difference.thread},
                             {"period", difference.period},
                             {"place", placeKey(difference.count.place)},
                             {"channel", jsonOf(difference.channel)},
                             {"denomination", difference.count.denomination},
                             {"expected", jsonOf(difference.expected)},
                             {"counted", difference.count.count},
                             {"difference", difference.difference},
                             {"explained_by", reasons}});
}

JsonText jsonOfMissing(const KioskCash& kiosk, const CashDifference& missing)
{
    return JsonText::object({{"kind", QStringLiteral("not_counted")},
                             {"kiosk", jsonOf(kiosk.kiosk)},
                             {"device", missing.count.device},
                             {"thread", missing.thread},
                             {"period", missing.period},
                             {"place", placeKey(missing.count.place)},
                             {"channel", jsonOf(missing.channel)},
                             {"denomination", missing.count.denomination},
                             {"currency", jsonOf(missing.count.currency)},
                             {"expected", jsonOf(missing.expected)}});
}

// An object with one more member.
QByteArray withMember(const QByteArray& object, const char* name, const JsonText& value)
{
    return object.left(object.size() - 1) + ",\"" + name + "\":" + value + '}';
}

} // namespace

QByteArray cashJson(const CashAnswer& answer)
{
    QByteArray text;
    for (const KioskCash& kiosk : answer.kiosks) {
        for (const CashPeriod& period : kiosk.periods) {
            text += jsonOf(answer.logs, kiosk, period) + '\n';
            for (const CashRow& row : period.rows)
                text += jsonOf(kiosk, period, row) + '\n';
        }
        for (const CashDifference& difference : kiosk.differences)
            text += jsonOf(answer.logs, kiosk, difference) + '\n';
        for (const CashDifference& missing : kiosk.notCounted)
            text += jsonOfMissing(kiosk, missing) + '\n';
        for (const Contradiction& found : kiosk.contradictions)
            text += withMember(jsonOf(answer.logs, found), "kiosk", jsonOf(kiosk.kiosk)) + '\n';
    }
    return text + withMember(jsonOf(answer.summary), "devices", JsonText(answer.devices)) + '\n';
}

namespace {

// A cell of a table for spreadsheets.
QString cell(const QString& text)
{
    static const QRegularExpression special(QStringLiteral("[\",;\\r\\n]"));
    if (!text.contains(special))
        return text;
    return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\""))
        + QLatin1Char('"');
}

// What a log says, which a spreadsheet must not take for a formula.
QString plain(const QString& text)
{
    static const QString formulas = QStringLiteral("=+-@");
    return !text.isEmpty() && formulas.contains(text.at(0)) ? QLatin1Char('\'') + text : text;
}

QStringList cells(const PieceRange& range)
{
    return {QString::number(range.min), range.max ? QString::number(*range.max) : QString()};
}

QString csvLine(const QStringList& values)
{
    QStringList line;
    for (const QString& value : values)
        line += cell(value);
    return line.join(QLatin1Char(',')) + QLatin1Char('\n');
}

QString number(const std::optional<int>& value)
{
    return value ? QString::number(*value) : QString();
}

QString csvRow(const KioskCash& kiosk, const CashPeriod& period, const CashRow& row)
{
    const bool isChannel = row.place == CashPlace::Channel;
    QStringList values{plain(kiosk.kiosk),
                       QString::number(period.device),
                       QString::number(period.thread),
                       QString::number(period.number),
                       period.from.iso(),
                       period.to.iso(),
                       period.isOpen ? QStringLiteral("1") : QStringLiteral("0"),
                       placeKey(row.place),
                       isChannel ? QString::number(row.channel) : QString(),
                       QString::number(row.kind.denomination),
                       plain(row.kind.currency),
                       number(row.kind.billType)};
    for (const PieceRange& range :
         {row.flow.opening, row.flow.in, row.flow.out, row.flow.moved, row.now})
        values += cells(range);
    values += {row.now.certainty(), row.why.join(QStringLiteral("; "))};
    return csvLine(values);
}

} // namespace

QByteArray cashCsv(const CashAnswer& answer)
{
    QString text;
    bool anyCounts = false;
    for (const KioskCash& kiosk : answer.kiosks)
        anyCounts = anyCounts || !kiosk.differences.empty();
    if (anyCounts) {
        text = QStringLiteral("kiosk,device,thread,period,place,channel,denomination,expected_min,"
                              "expected_max,counted,difference,explained_by\n");
        for (const KioskCash& kiosk : answer.kiosks) {
            for (const CashDifference& difference : kiosk.differences) {
                QStringList reasons;
                for (const CashDoubt::Example& example : difference.explanations) {
                    reasons += QStringLiteral("%1:%2: %3")
                                   .arg(answer.logs.value(LogPosition::log(example.place.line)),
                                        QString::number(LogPosition::line(example.place.line)),
                                        example.text);
                }
                text += csvLine(
                    QStringList{plain(kiosk.kiosk), QString::number(difference.count.device),
                                QString::number(difference.thread),
                                QString::number(difference.period),
                                placeKey(difference.count.place), number(difference.channel),
                                QString::number(difference.count.denomination)}
                    + cells(difference.expected)
                    + QStringList{QString::number(difference.count.count),
                                  QString::number(difference.difference),
                                  plain(reasons.join(QStringLiteral("; ")))});
            }
        }
        return text.toUtf8();
    }
    text = QStringLiteral(
        "kiosk,device,thread,period,from,to,open,place,channel,denomination,currency,bill_type,"
        "opening_min,opening_max,in_min,in_max,out_min,out_max,moved_min,moved_max,now_min,now_max,"
        "certainty,why\n");
    for (const KioskCash& kiosk : answer.kiosks) {
        for (const CashPeriod& period : kiosk.periods) {
            for (const CashRow& row : period.rows)
                text += csvRow(kiosk, period, row);
        }
    }
    return text.toUtf8();
}
