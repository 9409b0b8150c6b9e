// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "input.h"
#include "jsonlines.h"
#include "log/explanationpage.h"
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
    return int(arguments.number(option));
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

// Answers for the notes of the logs, one log after the other: as text, as JSON or on a page.
class Explaining
{
public:
    explicit Explaining(const Arguments& arguments)
        : m_keepGoing(arguments.isSet(options::keepGoing))
        , m_logs(arguments.operands())
        , m_input(readFilters(arguments, m_logs))
        , m_question{numberOf(arguments, options::session), numberOf(arguments, options::device),
                     arguments.isSet(options::refusals), arguments.isSet(options::summary)}
        , m_json(arguments.isSet(options::json))
    {
        if (arguments.isSet(options::html)) {
            if (m_json)
                throw Fault{Velmo::tr("--json and --html do not go together")};
            // Of the two options, one has no value: it names no file.
            m_page.emplace(arguments.value(options::html),
                           m_logs
                               + QStringList{arguments.value(options::filters),
                                             arguments.value(options::settings)},
                           m_input, m_question);
        }
        if (isText())
            print(m_input.rulesText(Velmo::tr("Filters in force (%1):").arg(m_input.fileName)));
    }

    // Returns the exit code.
    int answer()
    {
        int exitCode = exitSuccess;
        for (const QString& log : m_logs)
            exitCode = qMax(exitCode, answer(log));
        if (!m_isAnswered && !m_question.isAboutAll())
            throw Fault{
                Velmo::tr("the logs have nothing of the session or device that is asked for")};
        if (m_page)
            m_page->finish(m_summary);
        else
            print(m_json ? QString::fromUtf8(jsonOf(m_summary)) + QLatin1Char('\n')
                         : summaryText(m_summary));
        return exitCode;
    }

    bool anyRefused() const { return m_summary.of(Outcome::Refused).count > 0; }

private:
    bool isText() const { return !m_json && !m_page; }
    bool listsText() const { return isText() && !m_question.summaryOnly; }

    int answer(const QString& log)
    {
        std::optional<TextInput> file;
        try {
            file.emplace(openInput(log));
        } catch (const Fault& fault) {
            if (!m_keepGoing)
                throw;
            printError(fault.message);
            if (m_page)
                m_page->page().addDoubt(fault.message);
            return exitBadInput;
        }
        LogExplainer explainer(m_input.filters,
                               [&](const NoteAnswer& answer) { take(log, answer); });
        if (listsText() && m_logs.size() > 1)
            print(file->name() + QStringLiteral(":\n"));
        if (m_page)
            m_page->page().beginLog(file->name());
        std::set<int> asked; // the sessions that are asked for, where not all are
        const int exitCode = processLines(
            *file, m_keepGoing,
            [&](const QByteArray& line) {
                takeLine(explainer, *file, line, asked);
                return std::exchange(m_text, {});
            },
            [&] { explainer.skipLine(); });
        explainer.finish();
        m_summary.sessions += m_question.isAboutAll() ? explainer.sessions() : int(asked.size());
        m_isAnswered = m_isAnswered || !asked.empty();
        if (m_page)
            m_page->endLog(explainer);
        if (listsText())
            m_text += '\n';
        print(QString::fromUtf8(std::exchange(m_text, {})));
        return exitCode;
    }

    void takeLine(LogExplainer& explainer, const TextInput& file, const QByteArray& bytes,
                  std::set<int>& asked)
    {
        const SessionLine line = SessionLine::read(file, bytes);
        file.placing([&] { explainer.take(line, file.lineNumber()); });
        for (const LogStep& step : explainer.player().steps()) {
            const int session = step.device->session();
            if (!m_question.isAboutAll() && m_question.isAbout(session, step.device->deviceId()))
                asked.insert(session);
        }
        if (m_page)
            m_page->follow(explainer, line.time(), file.lineNumber());
    }

    void take(const QString& log, const NoteAnswer& answer)
    {
        if (!m_question.isAbout(answer.session, answer.device))
            return;
        m_summary.add(answer);
        if (m_page && !m_question.summaryOnly)
            m_page->page().add(answer);
        else if (!m_page && m_question.shows(answer))
            m_text += m_json ? jsonOf(log, answer) + '\n' : textLine(answer);
    }

    const bool m_keepGoing;
    const QStringList m_logs;
    const FiltersInput m_input;
    const Question m_question;
    const bool m_json;
    std::optional<PageFile> m_page;
    QByteArray m_text; // of the answers that a line led to
    Summary m_summary;
    bool m_isAnswered = false; // something of what is asked for was there
};

} // namespace

int explainCommand(const Arguments& arguments)
{
    Explaining explaining(arguments);
    const int exitCode = explaining.answer();
    if (exitCode == exitSuccess && explaining.anyRefused() && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
