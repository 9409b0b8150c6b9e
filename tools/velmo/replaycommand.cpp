#include "replaycommand.h"

#include "commandline.h"
#include "filtersfile.h"
#include "jsonlines.h"
#include "replay.h"

#include <QCommandLineParser>
#include <QJsonDocument>

#include <optional>

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
    const QCommandLineOption keepGoing = keepGoingOption();
    parser.addOptions({filters, settings, json, keepGoing});

    if (!parseArguments(parser, arguments))
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
        if (!step.hasEvent)
            refusal += QStringLiteral("(nothing sent yet)");
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

int replay(const Options& options)
{
    Replay replay(options.filterSource, options.filtersFile);
    TextFile session(options.sessionFile);
    bool headWritten = options.json;
    return processJsonLines(session, options.keepGoing, [&](const QJsonObject& line) {
        const ReplayStep step = replay.take(SessionLine(line));
        const QByteArray head = headWritten ? QByteArray() : tableHead();
        headWritten = true;
        return head
            + (options.json ? jsonLine(session.lineNumber(), step)
                            : tableLine(session.lineNumber(), step));
    });
}

} // namespace

int replayCommand(const QStringList& arguments)
{
    const std::optional<Options> options = parseOptions(arguments);
    return options ? replay(*options) : exitSuccess;
}
