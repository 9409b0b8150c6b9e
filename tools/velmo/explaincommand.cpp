// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "filtersinput.h"
#include "inputfile.h"
#include "jsonlines.h"
#include "log/explanationpage.h"
#include "options.h"
#include "terminal/output.h"
#include "terminal/table.h"

#include <QTemporaryFile>

#include <optional>
#include <set>

namespace {

// What of the answers is asked for.
struct Question
{
    std::optional<int> session;
    std::optional<int> device;
    bool refusalsOnly;
    bool summaryOnly;

    bool isAbout(int sessionNumber, quint32 deviceId) const
    {
        return (!session || sessionNumber == *session) && (!device || deviceId == quint32(*device));
    }

    bool isAboutAll() const { return !session && !device; }

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
    static const char* const colors[outcomeCount] = {"\033[31m", "\033[32m", "\033[35m",
                                                     "\033[33m", "\033[33m", "\033[2m"};
    const QString text = wrapped(printableLines(answer.text()), indent, width);
    if (!isColored)
        return text.toUtf8();
    const auto end = qMin(answer.headline().size(), text.indexOf(QLatin1Char('\n')));
    return colors[int(answer.outcome)] + text.left(end).toUtf8() + "\033[0m"
        + text.mid(end).toUtf8();
}

QString summaryText(const Summary& summary)
{
    QList<QStringList> rows;
    const QList<Summary::Row> all = summary.rows();
    for (const Summary::Row& row : all) {
        rows += QStringList{(row.isPart ? QStringLiteral("  ") : QString()) + row.what,
                            QString::number(row.tally.count),
                            row.hasSum ? QString::number(row.tally.sum) : QString()};
    }
    return Velmo::tr("Sessions: %1").arg(summary.sessions) + QLatin1Char('\n')
        + formatTable({Velmo::tr("Notes"), QLatin1Char('>') + Velmo::tr("Number"),
                       QLatin1Char('>') + Velmo::tr("Sum")},
                      rows);
}

// The page that --html asks for. Its file is there when all is written, or not at all.
class PageFile
{
public:
    PageFile(const QString& fileName, const QStringList& inputs, const FiltersInput& input,
             const Question& question)
        : m_question(question)
        , m_file(fileName, inputs)
        , m_page({input.fileName, input.filters.rules(), input.findings, input.filters.sumLimit()},
                 m_sections)
    {
        if (!m_sections.open())
            throw Fault{
                QStringLiteral("%1: %2").arg(m_sections.fileName(), m_sections.errorString())};
    }

    ExplanationPage& page() { return m_page; }

    // Shows what a line led to.
    void follow(const LogExplainer& explainer, const LogTime& time, qint64 line)
    {
        bool anyStarts = false;
        for (const LogStep& step : explainer.player().steps()) {
            anyStarts = anyStarts || step.startsSession;
            if ((step.sent || step.startsSession) && !m_question.summaryOnly
                && m_question.isAbout(step.device->session(), step.device->deviceId()))
                m_page.add(*step.device, time, line);
        }
        if (anyStarts)
            m_page.finishSessions(explainer.firstOpenSession(), m_question.refusalsOnly);
    }

    void endLog(const LogExplainer& explainer)
    {
        m_page.endLog(explainer.player().skippedLines(), m_question.refusalsOnly);
    }

    void finish(const Summary& summary)
    {
        m_page.write(m_file.device(), summary);
        m_file.commit();
    }

private:
    const Question m_question;
    QTemporaryFile m_sections;
    OutputFile m_file;
    ExplanationPage m_page;
};

} // namespace

int explainCommand(const Arguments& arguments)
{
    const QStringList& logs = arguments.operands();
    const FiltersInput input = readFilters(arguments, logs);
    const Question question{numberOf(arguments, options::session),
                            numberOf(arguments, options::device),
                            arguments.isSet(options::refusals), arguments.isSet(options::summary)};
    const bool json = arguments.isSet(options::json);
    const bool html = arguments.isSet(options::html);
    if (json && html)
        throw Fault{Velmo::tr("--json and --html do not go together")};
    const bool asText = !json && !html;
    std::optional<PageFile> page;
    if (html) {
        // Of the two options, one has no value: it names no file.
        page.emplace(arguments.value(options::html),
                     logs
                         + QStringList{arguments.value(options::filters),
                                       arguments.value(options::settings)},
                     input, question);
    }
    if (asText)
        print(input.rulesText(Velmo::tr("Filters in force (%1):").arg(input.fileName)));

    Summary summary;
    bool isAnswered = question.isAboutAll();
    const bool keepGoing = arguments.isSet(options::keepGoing);
    int exitCode = exitSuccess;
    for (const QString& log : logs) {
        std::optional<TextInput> opened;
        try {
            opened.emplace(openInput(log));
        } catch (const Fault& fault) {
            if (!keepGoing)
                throw;
            printError(fault.message);
            if (page)
                page->page().addDoubt(fault.message);
            exitCode = exitBadInput;
            continue;
        }
        TextInput& file = *opened;
        QByteArray text; // of the answers that a line led to
        std::set<int> asked; // the sessions that are asked for, where not all are
        LogExplainer explainer(input.filters, [&](const NoteAnswer& answer) {
            if (!question.isAbout(answer.session, answer.device))
                return;
            summary.add(answer);
            if (page && !question.summaryOnly)
                page->page().add(answer);
            else if (!page && question.shows(answer))
                text += json ? jsonOf(log, answer) + '\n' : textLine(answer);
        });
        if (asText && !question.summaryOnly && logs.size() > 1)
            print(file.name() + QStringLiteral(":\n"));
        if (page)
            page->page().beginLog(file.name());
        const int result = processLines(
            file, keepGoing,
            [&](const QByteArray& bytes) {
                const SessionLine line = SessionLine::read(file, bytes);
                explainer.take(line, file.lineNumber());
                if (!question.isAboutAll()) {
                    for (const LogStep& step : explainer.player().steps()) {
                        if (question.isAbout(step.device->session(), step.device->deviceId()))
                            asked.insert(step.device->session());
                    }
                }
                if (page)
                    page->follow(explainer, line.time(), file.lineNumber());
                return std::exchange(text, {});
            },
            [&] { explainer.skipLine(); });
        explainer.finish();
        summary.sessions += question.isAboutAll() ? explainer.sessions() : int(asked.size());
        isAnswered = isAnswered || !asked.empty();
        if (page)
            page->endLog(explainer);
        if (asText && !question.summaryOnly)
            text += '\n';
        print(QString::fromUtf8(text));
        exitCode = qMax(exitCode, result);
    }
    if (!isAnswered)
        throw Fault{Velmo::tr("the logs have nothing of the session or device that is asked for")};
    if (page)
        page->finish(summary);
    else
        print(json ? QString::fromUtf8(jsonOf(summary)) + QLatin1Char('\n') : summaryText(summary));
    const bool isRefusal = summary.of(Outcome::Refused).count > 0;
    if (exitCode == exitSuccess && isRefusal && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
