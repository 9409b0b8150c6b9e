#include "replaycommand.h"

#include "commandline.h"
#include "filtersfile.h"
#include "replay.h"
#include "textfile.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <cstdio>
#include <optional>
#include <unistd.h>

namespace {

struct Options
{
    QString sessionFile;
    Replay::FilterSource filterSource;
    QString filtersFile;
    bool json = false;
    bool keepGoing = false;
};

// Nothing when only help was wanted.
std::optional<Options> parseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Plays what a device reported through the worker, the note filters and the "
                       "published state, and shows for every line what came of it."));
    parser.addPositionalArgument(QStringLiteral("replay"), QString(), QStringLiteral("replay"));
    parser.addPositionalArgument(
        QStringLiteral("SESSION.jsonl"),
        QStringLiteral("One JSON object a line with the reported fields; {\"session\":\"start\"} "
                       "begins a session. \"-\" reads standard input."));
    const QCommandLineOption help = helpOption();
    const QCommandLineOption filters(
        QStringLiteral("filters"),
        QStringLiteral("The note filters: [{\"name\":\"AttemptsFilter\",\"params\":"
                       "{\"denom\":1000,\"attempts\":2}}, ...]"),
        QStringLiteral("FILTERS.json"));
    const QCommandLineOption settings(
        QStringLiteral("settings"),
        QStringLiteral("In place of --filters: the filters that the service's settings imply."),
        QStringLiteral("SETTINGS.json"));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Print one JSON object for every line."));
    const QCommandLineOption keepGoing(
        QStringLiteral("keep-going"),
        QStringLiteral("Skip bad lines and count them; the exit code is still 2."));
    parser.addOptions({help, filters, settings, json, keepGoing});

    if (!parseArguments(parser, arguments, help))
        return std::nullopt;
    if (parser.positionalArguments().size() != 2
        || parser.isSet(filters) == parser.isSet(settings)) {
        throw Fault{QStringLiteral("usage: velmo replay SESSION.jsonl "
                                   "(--filters FILTERS.json | --settings SETTINGS.json)")};
    }
    const bool ofSettings = parser.isSet(settings);
    const Options options{
        parser.positionalArguments().at(1), ofSettings ? filtersOfSettings : loadFilters,
        parser.value(ofSettings ? settings : filters), parser.isSet(json), parser.isSet(keepGoing)};
    const QLatin1String standardInput("-");
    if (options.sessionFile == standardInput && options.filtersFile == standardInput)
        throw Fault{QStringLiteral("session and filters cannot both come from standard input")};
    return options;
}

QString verdictText(AbstractFilter::FilterResult verdict)
{
    return verdict == AbstractFilter::FILTER_ACCEPT ? QStringLiteral("accept")
                                                    : QStringLiteral("reject");
}

QByteArray jsonLine(qint64 lineNumber, const ReplayStep& step)
{
    QJsonObject object{
        {QStringLiteral("line"), lineNumber},
        {QStringLiteral("state"), step.state},
        {QStringLiteral("note"), step.note},
        {QStringLiteral("session_sum"), step.sessionSum},
        {QStringLiteral("sent"), step.sent},
        {QStringLiteral("verdict"), verdictText(step.verdict)},
        {QStringLiteral("refused_by"), QJsonValue::Null},
        {QStringLiteral("payment_text"), step.paymentText},
        {QStringLiteral("accepting_allowed"), step.acceptingAllowed},
    };
    if (step.startsSession)
        object.insert(QStringLiteral("session"), QStringLiteral("start"));
    if (step.refusedBy) {
        object.insert(QStringLiteral("refused_by"),
                      QJsonObject{{QStringLiteral("name"), filterName(*step.refusedBy)},
                                  {QStringLiteral("params"), filterParams(*step.refusedBy)}});
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

// One line of the table; the last cell takes what room it needs.
QByteArray tableRow(const QStringList& cells)
{
    // Negative: right-aligned.
    constexpr int widths[] = {-7, 10, -8, -9, 4, 7, 9, 27, 0};
    QString row;
    for (int i = 0; i < cells.size(); ++i) {
        const int width = widths[i];
        row += width < 0 ? cells.at(i).rightJustified(-width) : cells.at(i).leftJustified(width);
        row += QStringLiteral("  ");
    }
    while (row.endsWith(QLatin1Char(' ')))
        row.chop(1);
    return row.toUtf8() + '\n';
}

QByteArray tableHead()
{
    return tableRow({QStringLiteral("Line"), QStringLiteral("State"), QStringLiteral("Note"),
                     QStringLiteral("Sum"), QStringLiteral("Sent"), QStringLiteral("Verdict"),
                     QStringLiteral("Accepting"), QStringLiteral("Payment text"),
                     QStringLiteral("Refused by")});
}

QByteArray tableLine(qint64 lineNumber, const ReplayStep& step)
{
    const auto yesNo = [](bool yes) { return yes ? QStringLiteral("yes") : QStringLiteral("no"); };
    QStringList refusal;
    if (step.refusedBy) {
        refusal += filterName(*step.refusedBy);
        const QJsonObject params = filterParams(*step.refusedBy);
        for (auto param = params.begin(); param != params.end(); ++param) {
            refusal +=
                QStringLiteral("%1=%2").arg(param.key(), param.value().toVariant().toString());
        }
    }
    const QByteArray row =
        tableRow({QString::number(lineNumber), step.state, QString::number(step.note),
                  QString::number(step.sessionSum), yesNo(step.sent), verdictText(step.verdict),
                  yesNo(step.acceptingAllowed), step.paymentText, refusal.join(QLatin1Char(' '))});
    return (step.startsSession ? QByteArrayLiteral("-- session --\n") : QByteArray()) + row;
}

// Counts the lines on standard error, on a terminal that does not show the rows themselves.
class Progress
{
public:
    Progress() { m_sinceShown.start(); }

    ~Progress() { erase(); }

    /// Makes room for a line of text.
    void erase()
    {
        if (m_shown)
            fputs("\r\033[K", stderr);
        m_shown = false;
    }

    void show(qint64 lines)
    {
        if (!m_wanted || m_sinceShown.elapsed() < 200)
            return;
        fprintf(stderr, "\r%lld lines", static_cast<long long>(lines));
        m_sinceShown.restart();
        m_shown = true;
    }

private:
    const bool m_wanted = isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO);
    bool m_shown = false;
    QElapsedTimer m_sinceShown;
};

class Output
{
public:
    explicit Output(bool flushLines)
        : m_flushLines(flushLines)
    {
        if (!m_file.open(stdout, QIODevice::WriteOnly))
            throw fault();
    }

    void write(const QByteArray& text)
    {
        if (m_file.write(text) != text.size() || (m_flushLines && !m_file.flush()))
            throw fault();
    }

    void finish()
    {
        if (!m_file.flush())
            throw fault();
    }

private:
    Fault fault() const
    {
        return {QStringLiteral("standard output: %1").arg(m_file.errorString())};
    }

    QFile m_file;
    const bool m_flushLines;
};

QJsonObject parseObject(const TextFile& file, const QByteArray& text)
{
    const QJsonDocument document = file.parseJson(text, file.lineNumber());
    if (!document.isObject())
        throw file.faultAt(file.lineNumber(), QStringLiteral("expected a JSON object"));
    return document.object();
}

ReplayStep takeLine(Replay& replay, const TextFile& file, const QByteArray& text)
{
    const QJsonObject object = parseObject(file, text);
    try {
        return replay.take(SessionLine(object));
    } catch (const Fault& fault) {
        throw file.faultAt(file.lineNumber(), fault.message);
    }
}

int replay(const Options& options)
{
    Replay replay(options.filterSource, options.filtersFile);
    TextFile session(options.sessionFile);
    Output output(session.isLive() || isatty(STDOUT_FILENO));
    Progress progress;
    qint64 skipped = 0;
    bool headWritten = options.json;
    QByteArray text;
    while (session.readLine(text)) {
        progress.show(session.lineNumber());
        if (text.trimmed().isEmpty())
            continue;
        std::optional<ReplayStep> step;
        try {
            step = takeLine(replay, session, text);
        } catch (const Fault& fault) {
            if (!options.keepGoing)
                throw;
            progress.erase();
            printError(fault.message);
            ++skipped;
            continue;
        }
        if (!headWritten)
            output.write(tableHead());
        headWritten = true;
        output.write(options.json ? jsonLine(session.lineNumber(), *step)
                                  : tableLine(session.lineNumber(), *step));
    }
    output.finish();
    progress.erase();
    if (skipped == 0)
        return exitSuccess;
    printError(QStringLiteral("bad lines skipped: %1").arg(skipped));
    return exitBadInput;
}

} // namespace

int replayCommand(const QStringList& arguments)
{
    const std::optional<Options> options = parseOptions(arguments);
    return options ? replay(*options) : exitSuccess;
}
