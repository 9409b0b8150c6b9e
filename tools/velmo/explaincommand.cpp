// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "filtersinput.h"
#include "inputfile.h"
#include "jsonlines.h"
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

} // namespace

int explainCommand(const Arguments& arguments)
{
    const QStringList& logs = arguments.operands();
    const FiltersInput input = readFilters(arguments, logs);
    const Question question{numberOf(arguments, options::session),
                            numberOf(arguments, options::device),
                            arguments.isSet(options::refusals), arguments.isSet(options::summary)};
    const bool json = arguments.isSet(options::json);
    if (!json)
        print(input.rulesText(Velmo::tr("Filters in force (%1):").arg(input.fileName)));

    Summary summary;
    int exitCode = exitSuccess;
    for (const QString& log : logs) {
        QByteArray text; // of the answers that a line led to
        LogExplainer explainer(input.filters, [&](const NoteAnswer& answer) {
            if (!question.isAbout(answer))
                return;
            summary.add(answer);
            if (question.shows(answer))
                text += json ? jsonOf(log, answer) + '\n' : textLine(answer);
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
    print(json ? QString::fromUtf8(jsonOf(summary)) + QLatin1Char('\n') : summaryText(summary));
    const bool isRefusal = summary.of(Outcome::Refused).count > 0;
    if (exitCode == exitSuccess && isRefusal && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
