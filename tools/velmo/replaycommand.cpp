#include "commands.h"
#include "filtersfile.h"
#include "inputfile.h"
#include "jsonlines.h"
#include "options.h"
#include "replay.h"

#include <QJsonDocument>

namespace {

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

} // namespace

int replayCommand(const Arguments& arguments)
{
    const bool ofSettings = arguments.isSet(options::settings);
    if (ofSettings == arguments.isSet(options::filters))
        throw arguments.usageFault();
    const QString sessionName = arguments.operands().constFirst();
    const QString filtersName = arguments.value(ofSettings ? options::settings : options::filters);
    if (sessionName == filtersName && sessionName == QLatin1String("-"))
        throw Fault{Velmo::tr("session and filters cannot both come from standard input")};

    TextInput filtersText = openInput(filtersName);
    const ArrayFile filters(filtersText,
                            ofSettings ? QStringLiteral("settings") : QStringLiteral("filters"));
    Replay replay(ofSettings ? filtersOfSettings : loadFilters, filters);
    TextInput session = openInput(sessionName);
    const bool json = arguments.isSet(options::json);
    bool headWritten = json;
    return processJsonLines(session, arguments.isSet(options::keepGoing),
                            [&](const QJsonObject& line) {
                                const ReplayStep step = replay.take(SessionLine(line));
                                const QByteArray head = headWritten ? QByteArray() : tableHead();
                                headWritten = true;
                                return head
                                    + (json ? jsonLine(session.lineNumber(), step)
                                            : tableLine(session.lineNumber(), step));
                            });
}
