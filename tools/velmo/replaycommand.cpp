// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "input.h"
#include "jsonlines.h"
#include "log/replay.h"
#include "terminal/table.h"

#include <iterator>
#include <optional>

namespace {

QByteArray jsonLine(qint64 lineNumber, const LogTime& time, const ReplayStep& step)
{
    const DeviceState& state = step.device->state();
    JsonText verdict = JsonText::null();
    JsonText refusedBy = JsonText::null();
    if (step.verdict != ReplayStep::NoNote)
        verdict = step.refusedBy ? QStringLiteral("reject") : QStringLiteral("accept");
    if (step.refusedBy) {
        refusedBy = JsonText::object({{"name", filterName(*step.refusedBy)},
                                      {"params", JsonText::of(filterParams(*step.refusedBy))}});
    }
    QByteArray text = JsonText::object({
        {"line", lineNumber},
        {"time", time.isKnown() ? JsonText(time.iso()) : JsonText::null()},
        {"device", state.deviceId},
        {"thread", state.threadId},
        {"state", state.stateAsString()},
        {"state_text", state.stateText},
        {"error_text", state.errorText},
        {"note", state.currentNote},
        {"session_sum", state.sessionSum},
        {"sent", step.sent},
        {"verdict", verdict},
        {"refused_by", refusedBy},
        {"machine", jsonOf(step.device->conditions())},
        {"payment_text", step.paymentText},
        {"accepting_allowed", step.acceptingAllowed},
    });
    if (step.startsSession) {
        text.chop(1);
        text += R"(,"session":"start"})";
    }
    return text + '\n';
}

// A line of the table. The last cell takes what room is left, in several lines if need be; where
// there is little, it stands below the others.
QByteArray tableRow(const QStringList& cells, bool withTime)
{
    // Negative: right-aligned. The second column is the time.
    constexpr int widths[] = {-6, 8, 6, 10, -6, -7, 7};
    constexpr int leastRoom = 30;
    constexpr int below = 8;
    static const int width = outputWidth();
    QString row;
    for (int i = 0; i < int(std::size(widths)); ++i) {
        if (i == 1 && !withTime)
            continue;
        const int column = widths[i];
        row += column < 0 ? cells.at(i).rightJustified(-column) : cells.at(i).leftJustified(column);
        row += QStringLiteral("  ");
    }
    const QString& last = cells.constLast();
    const int room = width - int(row.size());
    if (width == 0 || room >= qMin(leastRoom, int(last.size())))
        return wrapped(row + last, int(row.size()), width).toUtf8();
    while (row.endsWith(QLatin1Char(' ')))
        row.chop(1);
    const QString meaning = QString(below, QLatin1Char(' ')) + last;
    return (row + QLatin1Char('\n') + wrapped(meaning, below, width)).toUtf8();
}

QByteArray tableHead(bool withTime)
{
    return tableRow({Velmo::tr("Line"), Velmo::tr("Time"), Velmo::tr("Device"), Velmo::tr("State"),
                     Velmo::tr("Note"), Velmo::tr("Sum"), Velmo::tr("Verdict"),
                     Velmo::tr("What it means")},
                    withTime);
}

QString verdictText(const ReplayStep& step)
{
    if (step.verdict == ReplayStep::NoNote)
        return {};
    return step.refusedBy ? Velmo::tr("reject") : Velmo::tr("accept");
}

// What the screen shows, and why the device or a filter takes no note.
QString meaning(const ReplayStep& step)
{
    const DeviceState& state = step.device->state();
    QStringList parts{step.paymentText};
    if (step.acceptingAllowed)
        parts += Velmo::tr("money may be accepted");
    if (!step.sent)
        parts += Velmo::tr("nothing new");
    if (!state.stateText.isEmpty())
        parts += state.stateText;
    if (!state.errorText.isEmpty() && !state.errCritical)
        parts += state.errorText;
    const QVector<MachineCondition> conditions = step.device->conditions();
    for (const MachineCondition& condition : conditions)
        parts += condition.text;
    if (step.refusedBy) {
        QString refusal = filterName(*step.refusedBy);
        const QJsonObject params = filterParams(*step.refusedBy);
        for (auto param = params.begin(); param != params.end(); ++param)
            refusal += QStringLiteral(" %1=%2").arg(param.key()).arg(param.value().toInt());
        parts += refusal;
    }
    return printable(parts.join(QStringLiteral("; ")));
}

QByteArray tableLine(qint64 lineNumber, const LogTime& time, const ReplayStep& step, bool withTime)
{
    const DeviceState& state = step.device->state();
    const QString device = step.device->threadId() == 0
        ? QString::number(step.device->deviceId())
        : QStringLiteral("%1/%2").arg(step.device->deviceId()).arg(step.device->threadId());
    const QByteArray row =
        tableRow({QString::number(lineNumber), time.clock().left(8), device, state.stateAsString(),
                  QString::number(state.currentNote), QString::number(state.sessionSum),
                  verdictText(step), meaning(step)},
                 withTime);
    if (!step.startsSession)
        return row;
    return Velmo::tr("-- session %1 --").arg(step.device->session()).toUtf8() + '\n' + row;
}

} // namespace

int replayCommand(const Arguments& arguments)
{
    const FiltersInput input = readFilters(arguments, arguments.operands());
    Replay replay(input.filters);
    TextInput log = openInput(arguments.operands().constFirst());
    const bool json = arguments.isSet(options::json);
    std::optional<bool> withTime; // known from the first line on
    const auto toText = [&](const QByteArray& text) {
        const SessionLine line = SessionLine::read(log, text);
        QByteArray result;
        if (!withTime && !json)
            result += tableHead(line.time().isKnown());
        withTime = withTime.value_or(line.time().isKnown());
        const std::vector<ReplayStep> steps =
            log.placing([&] { return replay.take(line, log.lineNumber()); });
        for (const ReplayStep& step : steps) {
            result += json ? jsonLine(log.lineNumber(), line.time(), step)
                           : tableLine(log.lineNumber(), line.time(), step, *withTime);
        }
        return result;
    };
    return processLines(log, arguments.isSet(options::keepGoing), toText,
                        [&replay] { replay.skipLine(); });
}
