#include "commands.h"
#include "explanation.h"
#include "filtersinput.h"
#include "inputfile.h"
#include "jsonlines.h"
#include "jsontext.h"
#include "options.h"
#include "output.h"
#include "table.h"

#include <optional>

namespace {

// What of the answers is asked for.
struct Question
{
    std::optional<int> session;
    std::optional<int> device;
    bool refusalsOnly;
    bool summaryOnly;

    bool isAbout(const NoteAnswer& answer) const
    {
        return (!session || answer.session == *session)
            && (!device || answer.device == quint32(*device));
    }

    bool shows(const NoteAnswer& answer) const
    {
        return !summaryOnly && (!refusalsOnly || answer.outcome == Outcome::Refused);
    }
};

std::optional<int> numberOf(const Arguments& arguments, const Option& option)
{
    if (!arguments.isSet(option))
        return {};
    bool isNumber = false;
    const int number = arguments.value(option).toInt(&isNumber);
    if (!isNumber || number < 0)
        throw Fault{Velmo::tr("%1: expected a number").arg(option.dashedName())};
    return number;
}

QByteArray jsonLine(const QString& log, const NoteAnswer& answer)
{
    const auto filter = [](const Objection& objection) {
        return JsonText::object({{"name", objection.filter},
                                 {"params", JsonText::of(objection.params)},
                                 {"evidence", JsonText::list(objection.evidence)},
                                 {"text", objection.text}});
    };
    const auto condition = [](const MachineCondition& machine) {
        return JsonText::object(
            {{"what", machine.what}, {"line", machine.line}, {"text", machine.text}});
    };
    const JsonText null = JsonText::of(QJsonValue::Null);
    return JsonText::object({{"kind", QStringLiteral("note")},
                             {"log", log},
                             {"session", answer.session},
                             {"device", qint64(answer.device)},
                             {"thread", qint64(answer.thread)},
                             {"line", answer.line},
                             {"time", answer.time.isKnown() ? JsonText(answer.time.iso()) : null},
                             {"note", answer.wasOffered() ? JsonText(answer.note) : null},
                             {"outcome", outcomeKey(answer.outcome)},
                             {"taken", answer.taken},
                             {"filters", JsonText::list(answer.objections, filter)},
                             {"machine", JsonText::list(answer.machine, condition)},
                             {"uncertain", JsonText::list(answer.uncertain)},
                             {"text", answer.text()}})
        + '\n';
}

JsonText jsonOf(const Tally& tally)
{
    return JsonText::object({{"count", tally.count}, {"sum", tally.sum}});
}

QByteArray jsonLine(const Summary& summary)
{
    QJsonObject by;
    for (auto filter = summary.refusedBy.begin(); filter != summary.refusedBy.end(); ++filter)
        by.insert(filter.key(), filter.value());
    const Tally& refused = summary.of(Outcome::Refused);
    return JsonText::object({{"kind", QStringLiteral("summary")},
                             {"sessions", summary.sessions},
                             {"offered", jsonOf(summary.offered)},
                             {"taken", jsonOf(summary.of(Outcome::Taken))},
                             {"refused",
                              JsonText::object({{"count", refused.count},
                                                {"sum", refused.sum},
                                                {"by", JsonText::of(by)},
                                                {"taken", jsonOf(summary.takenAlthoughRefused)}})},
                             {"rejected", jsonOf(summary.of(Outcome::Rejected))},
                             {"returned", jsonOf(summary.of(Outcome::Returned))},
                             {"unknown", jsonOf(summary.of(Outcome::Unknown))}})
        + '\n';
}

QByteArray textLine(const NoteAnswer& answer)
{
    constexpr int indent = 4;
    static const int width = outputWidth();
    static const bool isColored = isOutputColored();
    static const char* const colors[outcomeCount] = {"\033[31m", "\033[32m", "\033[33m", "\033[33m",
                                                     "\033[2m"};
    const QString text = wrapped(answer.text(), indent, width);
    if (!isColored)
        return text.toUtf8();
    const auto end = qMin(answer.headline().size(), text.indexOf(QLatin1Char('\n')));
    return colors[int(answer.outcome)] + text.left(end).toUtf8() + "\033[0m"
        + text.mid(end).toUtf8();
}

QString summaryText(const Summary& summary)
{
    QList<QStringList> rows;
    const auto add = [&rows](const QString& what, const Tally& tally) {
        rows += QStringList{what, QString::number(tally.count), QString::number(tally.sum)};
    };
    add(Velmo::tr("Offered"), summary.offered);
    add(Velmo::tr("Taken"), summary.of(Outcome::Taken));
    add(Velmo::tr("Refused by the filters"), summary.of(Outcome::Refused));
    for (auto filter = summary.refusedBy.begin(); filter != summary.refusedBy.end(); ++filter)
        rows +=
            QStringList{QStringLiteral("  ") + filter.key(), QString::number(filter.value()), {}};
    if (summary.takenAlthoughRefused.count > 0)
        add(QStringLiteral("  ") + Velmo::tr("taken although refused"),
            summary.takenAlthoughRefused);
    add(Velmo::tr("Rejected by the device"), summary.of(Outcome::Rejected));
    add(Velmo::tr("Returned"), summary.of(Outcome::Returned));
    add(Velmo::tr("Unknown"), summary.of(Outcome::Unknown));
    return Velmo::tr("Sessions: %1").arg(summary.sessions) + QLatin1Char('\n')
        + formatTable({Velmo::tr("Notes"), QLatin1Char('>') + Velmo::tr("Number"),
                       QLatin1Char('>') + Velmo::tr("Sum")},
                      rows);
}

QString rulesText(const FiltersInput& input)
{
    QString text = Velmo::tr("Filters in force (%1):").arg(input.fileName) + QLatin1Char('\n');
    const QStringList rules = input.filters.rules();
    for (const QString& rule : rules)
        text += wrapped(QStringLiteral("  - ") + rule, 4, outputWidth());
    if (rules.isEmpty())
        text +=
            QStringLiteral("  - ") + Velmo::tr("None: every note is accepted.") + QLatin1Char('\n');
    return text + QLatin1Char('\n');
}

} // namespace

int explainCommand(const Arguments& arguments)
{
    const QStringList logs = arguments.operands();
    const FiltersInput input = readFilters(arguments, logs);
    const Question question{numberOf(arguments, options::session),
                            numberOf(arguments, options::device),
                            arguments.isSet(options::refusals), arguments.isSet(options::summary)};
    const bool json = arguments.isSet(options::json);
    if (!json)
        print(rulesText(input));

    Summary summary;
    int exitCode = exitSuccess;
    for (const QString& log : logs) {
        QByteArray text; // of the answers that a line led to
        LogExplainer explainer(input.filters, [&](const NoteAnswer& answer) {
            if (!question.isAbout(answer))
                return;
            summary.add(answer);
            if (question.shows(answer))
                text += json ? jsonLine(log, answer) : textLine(answer);
        });
        TextInput file = openInput(log);
        if (!json && !question.summaryOnly && logs.size() > 1)
            print(file.name() + QStringLiteral(":\n"));
        const int result = processLines(
            file, arguments.isSet(options::keepGoing),
            [&](const QByteArray& line) {
                explainer.take(SessionLine::read(file, line), file.lineNumber());
                return std::exchange(text, {});
            },
            [&] { explainer.skipLine(); });
        explainer.finish();
        summary.sessions += explainer.sessions();
        if (!json && !question.summaryOnly)
            text += '\n';
        print(QString::fromUtf8(text));
        exitCode = qMax(exitCode, result);
    }
    print(json ? QString::fromUtf8(jsonLine(summary)) : summaryText(summary));
    const bool isRefusal = summary.of(Outcome::Refused).count > 0;
    if (exitCode == exitSuccess && isRefusal && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
