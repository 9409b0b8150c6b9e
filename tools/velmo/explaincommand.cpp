// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "input.h"
#include "jsonlines.h"
#include "log/explanationpage.h"
#include "overview.h"
#include "terminal/table.h"

#include <QTemporaryFile>

#include <optional>
#include <set>

namespace {

constexpr const char* colors[outcomeCount] = {"\033[31m", "\033[32m", "\033[35m",
                                              "\033[33m", "\033[33m", "\033[2m"};
constexpr const char* wrongColor = "\033[1;31m";

QByteArray textLine(const QString& headline, const QString& all, const char* color)
{
    constexpr int indent = 4;
    static const int width = outputWidth();
    static const bool isColored = isOutputColored();
    const QString text = wrapped(printableLines(all), indent, width);
    if (!isColored)
        return text.toUtf8();
    const auto end = qMin(headline.size(), text.indexOf(QLatin1Char('\n')));
    return color + text.left(end).toUtf8() + "\033[0m" + text.mid(end).toUtf8();
}

// @param overview what stands below the table
QString summaryText(const Summary& summary, const QString& overview)
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
                      rows)
        + overview
        + (summary.isIncomplete ? QLatin1Char('\n')
                   + Velmo::tr("Incomplete: the logs were not read to the end.") + QLatin1Char('\n')
                                : QString());
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
    // @param sessions those that are asked for; null for all
    void follow(const LogExplainer& explainer, const LogTime& time, qint64 line,
                const std::set<int>* sessions)
    {
        bool anyStarts = false;
        for (const LogStep& step : explainer.player().steps()) {
            anyStarts = anyStarts || step.startsSession;
            if ((step.sent || step.startsSession) && !m_question.summaryOnly
                && m_question.isAbout(step.device->session(), step.device->deviceId()))
                m_page.add(*step.device, time, line);
        }
        if (anyStarts)
            m_page.finishSessions(explainer.firstOpenSession(), m_question.told, sessions);
    }

    void endLog(const LogExplainer& explainer, const std::set<int>* sessions)
    {
        m_page.endLog(explainer.player().skippedLines(), m_question.told, sessions);
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
class Explaining : private MoneyWatcher
{
public:
    explicit Explaining(const Arguments& arguments)
        : m_keepGoing(arguments.isSet(options::keepGoing))
        , m_utc(arguments.isSet(options::utc))
        , m_logs(arguments.operands())
        , m_question(arguments)
        , m_input(readFilters(arguments, m_logs))
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
        } else if (m_question.told == Told::All && !(m_json && m_question.summaryOnly)) {
            m_overview.emplace(m_question, m_json, m_logs.size() > 1);
        }
        if (isText())
            print(m_input.rulesText(Velmo::tr("Filters in force (%1):").arg(m_input.fileName)));
    }

    // Returns the exit code.
    int answer()
    {
        int exitCode = exitSuccess;
        for (int i = 0; i < m_logs.size() && !m_summary.isIncomplete; ++i)
            exitCode = qMax(exitCode, answer(m_logs.at(i)));
        if (!m_isFound && !m_summary.isIncomplete && (m_question.session || m_question.device))
            throw Fault{
                Velmo::tr("the logs have nothing of the session or device that is asked for")};
        if (m_page)
            m_page->finish(m_summary);
        else
            print(m_json ? QString::fromUtf8(jsonOf(m_summary)) + QLatin1Char('\n')
                         : summaryText(m_summary, m_overview ? m_overview->text() : QString()));
        return exitCode;
    }

    bool anyFound() const
    {
        return m_summary.of(Outcome::Refused).count + m_summary.contradictions > 0;
    }

private:
    bool isText() const { return !m_json && !m_page; }
    bool listsText() const { return isText() && !m_question.summaryOnly; }

    int answer(const QString& log)
    {
        std::optional<TextInput> file;
        try {
            file.emplace(openInput(log));
        } catch (const Fault& fault) {
            return takeFault(fault);
        }
        m_log = log;
        m_asked.clear();
        m_untimed = 0;
        LineTimes times(m_utc);
        LogExplainer explainer(
            m_input.filters, [&](const NoteAnswer& answer) { take(answer); }, this);
        if (listsText() && m_logs.size() > 1)
            print(file->name() + QStringLiteral(":\n"));
        if (m_page)
            m_page->page().beginLog(file->name());
        if (m_overview)
            m_overview->beginLog(log, file->name());
        std::optional<Fault> ending;
        const int exitCode = processLines(
            *file, m_keepGoing,
            [&](const QByteArray& line) {
                takeLine(explainer, *file, times, line);
                return std::exchange(m_text, {});
            },
            [&] { explainer.skipLine(); }, &ending);
        explainer.finish();
        const bool isUntimed =
            !m_question.period.isAll() && !times.anyKnown() && file->lineNumber() > 0;
        finish(explainer, !isUntimed);
        if (m_untimed > 0 && !isUntimed) {
            tell(Velmo::tr("%1: notes before the first time, left out: %2")
                     .arg(file->name())
                     .arg(m_untimed));
        }
        if (ending)
            return takeFault(*ending);
        if (isUntimed)
            return takeFault({Velmo::tr("%1: no line has a time: nothing can be selected by it")
                                  .arg(file->name())});
        return exitCode;
    }

    void takeLine(LogExplainer& explainer, const TextInput& file, LineTimes& times,
                  const QByteArray& bytes)
    {
        SessionLine line = SessionLine::read(file, bytes);
        if (m_utc || !m_question.period.isAll())
            times.place(line);
        const LogTime time = line.time();
        file.placing([&] { explainer.take(line, file.lineNumber()); });
        m_isAnyRead = m_isAnyRead || m_question.period.isAll() || times.anyKnown();
        if (!m_question.isAboutAll()) {
            for (const LogStep& step : explainer.player().steps())
                lookAt(*step.device, time);
        }
        if (m_page)
            m_page->follow(explainer, time, file.lineNumber(), sessions());
        if (m_overview) {
            m_overview->follow(explainer.player(), time, file.lineNumber());
            m_text += m_overview->takeJson();
        }
    }

    // Sees whether a line is about what is asked for.
    void lookAt(const LogDevice& device, const LogTime& time)
    {
        const int session = device.session();
        if (!m_question.isAbout(session, device.deviceId()))
            return;
        m_isFound = true;
        if (!m_question.choosesNotes() && m_question.period.has(time))
            m_asked.insert(session);
    }

    // The sessions that are asked for; null for all.
    const std::set<int>* sessions() const { return m_question.isAboutAll() ? nullptr : &m_asked; }

    void take(const NoteAnswer& answer)
    {
        const bool isAsked = m_question.isAbout(answer);
        const bool counts = isAsked && m_question.period.has(answer.time);
        m_untimed += isAsked && !counts && !answer.time.latestMoment() ? 1 : 0;
        if (m_overview)
            m_overview->add(answer, counts);
        if (!counts)
            return;
        if (m_question.choosesNotes())
            m_asked.insert(answer.session);
        m_summary.add(answer);
        if (m_page && !m_question.summaryOnly)
            m_page->page().add(answer);
        else if (!m_page && m_question.shows(answer)) {
            m_text += m_json
                ? jsonOf(m_log, answer) + '\n'
                : textLine(answer.headline(), answer.text(), colors[int(answer.outcome)]);
        }
    }

    void takeContradiction(const MoneyTrail& /*trail*/, const Contradiction& found) override
    {
        if (!m_question.isAbout(found) || !m_question.period.has(found.time))
            return;
        ++m_summary.contradictions;
        if (m_page && m_question.shows(found))
            m_page->page().add(found);
        else if (!m_page && m_question.shows(found))
            m_text += m_json ? jsonOf(QStringList(m_log), found) + '\n'
                             : textLine(found.headline(), found.text(), wrongColor);
    }

    // Tells what is to be told at the end of a log.
    // @param isTold of its devices
    void finish(const LogExplainer& explainer, bool isTold)
    {
        m_summary.sessions += m_question.isAboutAll() ? explainer.sessions() : int(m_asked.size());
        if (m_page)
            m_page->endLog(explainer, sessions());
        if (m_overview && isTold) {
            m_overview->endLog();
            m_text += m_overview->takeJson();
        }
        if (listsText())
            m_text += '\n';
        print(QString::fromUtf8(std::exchange(m_text, {})));
    }

    // Says what may make the answers wrong.
    void tell(const QString& doubt)
    {
        printError(doubt);
        if (m_page)
            m_page->page().addDoubt(doubt);
    }

    // A log cannot be read any further. What was read is answered; a page is whole or not there.
    int takeFault(const Fault& fault)
    {
        if (!m_keepGoing && (m_page || !m_isAnyRead))
            throw fault;
        tell(fault.message);
        m_summary.isIncomplete = !m_keepGoing;
        return exitBadInput;
    }

    const bool m_keepGoing;
    const bool m_utc;
    const QStringList m_logs;
    const Question m_question;
    const FiltersInput m_input;
    const bool m_json;
    std::optional<PageFile> m_page;
    std::optional<Overview> m_overview;
    Summary m_summary;
    bool m_isAnyRead = false; // that answers can be given of
    bool m_isFound = false; // something of what is asked for was there

    // Of the log that is read:
    QString m_log;
    std::set<int> m_asked; // the sessions that are asked for, where not all are
    qint64 m_untimed = 0; // notes that are left out, their time not being known
    QByteArray m_text; // of what a line led to
};

} // namespace

int explainCommand(const Arguments& arguments)
{
    Explaining explaining(arguments);
    const int exitCode = explaining.answer();
    if (exitCode == exitSuccess && explaining.anyFound() && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
