// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleethistory.h"

#include "commands.h"
#include "fleetmemory.h"
#include "history.h"
#include "period.h"
#include "terminal/output.h"
#include "terminal/table.h"
#include "text/devicename.h"
#include "json/jsontext.h"

#include <QDateTime>

#include <algorithm>
#include <limits>

namespace {

History openHistory(const Arguments& arguments, const char* of)
{
    if (!arguments.isSet(options::history))
        throw Fault{Velmo::tr("%1 needs %2").arg(QLatin1String(of), options::history.dashedName())};
    return History(arguments.value(options::history));
}

// The exit code of what was told up to now.
int codeOf(const History& history, int exitCode = exitSuccess)
{
    try {
        history.requireWriter();
        return exitCode;
    } catch (const Fault& fault) {
        printError(fault.message);
        return exitBadInput;
    }
}

qint64 now()
{
    return QDateTime::currentMSecsSinceEpoch();
}

// Throws Fault where the selection has none of the kiosks: a name that is mistyped is no answer.
void requireKiosk(const History& history, const FleetSelection& selection)
{
    const QStringList kiosks = history.now(now()).keys();
    if (!selection.isAll() && std::none_of(kiosks.begin(), kiosks.end(), [&](const QString& kiosk) {
            return selection.hasName(kiosk);
        })) {
        throw Fault{Velmo::tr("no kiosk has such a name and region")};
    }
}

// One thing that was so for a while, or happened.
struct Event
{
    qint64 began;
    std::optional<qint64> ended;
    QString text;
    QByteArray json;
};

JsonText numberOf(int of)
{
    return of < 0 ? JsonText::null() : JsonText(of);
}

std::vector<Event> eventsOf(const History& history, const QString& kiosk)
{
    std::vector<Event> events;
    for (const History::ConditionSpan& span : history.conditions(kiosk)) {
        events.push_back(
            {span.began, span.ended, conditionText(span.condition),
             JsonText::object(
                 {{"kind", QStringLiteral("condition")},
                  {"began", KioskSummary::momentText(span.began)},
                  {"ended", KioskSummary::momentText(span.ended)},
                  {"condition", QString(QLatin1String(KioskSummary::name(span.condition)))}})});
    }
    for (const History::FaultSpan& span : history.faults(kiosk)) {
        events.push_back({span.began, span.ended, QStringLiteral("  ") + printable(span.fault.text),
                          JsonText::object({{"kind", QStringLiteral("fault")},
                                            {"began", KioskSummary::momentText(span.began)},
                                            {"ended", KioskSummary::momentText(span.ended)},
                                            {"device", numberOf(span.fault.device)},
                                            {"thread", numberOf(span.fault.thread)},
                                            {"reason", span.fault.reason},
                                            {"text", span.fault.text}})});
    }
    for (const History::Collection& collection : history.collections(kiosk)) {
        const QString device = deviceName(collection.device);
        events.push_back(
            {collection.time, collection.time,
             collection.notes ? Velmo::tr("%1: the cassette was collected, with %n notes", nullptr,
                                          int(*collection.notes))
                                    .arg(device)
                              : Velmo::tr("%1: the cassette was collected").arg(device),
             JsonText::object(
                 {{"kind", QStringLiteral("collection")},
                  {"time", KioskSummary::momentText(collection.time)},
                  {"device", numberOf(collection.device)},
                  {"thread", numberOf(collection.thread)},
                  {"notes", collection.notes ? JsonText(*collection.notes) : JsonText::null()}})});
    }
    // Of the same time, a condition comes before its faults.
    std::stable_sort(events.begin(), events.end(),
                     [](const Event& a, const Event& b) { return a.began < b.began; });
    return events;
}

QString eventsText(const std::vector<Event>& events)
{
    QList<QStringList> rows;
    for (const Event& event : events) {
        const bool isMoment = event.ended == event.began;
        rows += QStringList{timeText(event.began),
                            isMoment ? QString()
                                     : durationText(event.ended.value_or(now()) - event.began),
                            event.ended ? QString() : Velmo::tr("still"), event.text};
    }
    return formatTable({Velmo::tr("From"), Velmo::tr("For"), QString(), Velmo::tr("What")}, rows,
                       outputWidth());
}

// As "99.98", never rounded up: what was away is not told as all.
QString percentText(qint64 part, qint64 whole)
{
    if (whole <= 0)
        return {};
    const auto hundredths = qint64(double(part) / double(whole) * 10000);
    return QStringLiteral("%1.%2")
        .arg(hundredths / 100)
        .arg(hundredths % 100, 2, 10, QLatin1Char('0'));
}

QDate monthOf(const Arguments& arguments)
{
    if (arguments.operands().isEmpty()) {
        const QDate today = QDate::currentDate();
        return {today.year(), today.month(), 1};
    }
    const QString text = arguments.operands().constFirst();
    const QDate month = QDate::fromString(text, QStringLiteral("yyyy-MM"));
    if (!month.isValid() || month > QDate::currentDate())
        throw Fault{Velmo::tr("\"%1\": expected a month, as 2026-11, that has begun").arg(text)};
    return month;
}

// Of kiosks together.
History::Availability& operator+=(History::Availability& all, const History::Availability& other)
{
    all.known += other.known;
    all.inService += other.inService;
    all.silent += other.silent;
    return all;
}

// "48h" in milliseconds.
qint64 spanOf(const Arguments& arguments)
{
    const QString text = arguments.value(options::due);
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,5})([mhdw])$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        throw Fault{
            Velmo::tr("%1: expected a time, as 90m, 48h, 3d or 2w").arg(options::due.dashedName())};
    const QChar unit = match.captured(2).at(0);
    const qint64 minutes = unit == QLatin1Char('m') ? 1
        : unit == QLatin1Char('h')                  ? 60
        : unit == QLatin1Char('d')                  ? 24 * 60
                                                    : 7 * 24 * 60;
    return match.captured(1).toLongLong() * minutes * 60000;
}

QString placeText(const History::Due& due)
{
    const QString device = deviceName(due.device);
    if (due.channel < 0)
        return Velmo::tr("%1, cassette").arg(device);
    return due.denomination == 0
        ? Velmo::tr("%1, channel %2").arg(device).arg(due.channel)
        : Velmo::tr("%1, channel %2 of %3").arg(device).arg(due.channel).arg(due.denomination);
}

// What will be, and of how much.
QString dueText(const History::Due& due)
{
    const QString text = due.what == History::Due::Empty
        ? Velmo::tr("%1: empty (holds %2, %3 a day)")
        : Velmo::tr("%1: full (holds %2, %3 a day)");
    return text.arg(placeText(due)).arg(due.level).arg(qRound64(due.perDay));
}

// When, where that is not over.
QString whenText(std::optional<qint64> time)
{
    return time && *time <= now() ? Velmo::tr("now") : timeText(time);
}

QByteArray dueJson(const History::Due& due)
{
    return JsonText::object(
               {{"kind", QStringLiteral("due")},
                {"kiosk", due.kiosk},
                {"device", numberOf(due.device)},
                {"thread", numberOf(due.thread)},
                {"what",
                 due.what == History::Due::Empty ? QStringLiteral("empty")
                                                 : QStringLiteral("full")},
                {"channel", numberOf(due.channel)},
                {"denomination",
                 due.denomination == 0 ? JsonText::null() : JsonText(due.denomination)},
                {"currency", due.currency.isEmpty() ? JsonText::null() : JsonText(due.currency)},
                {"level", due.level},
                {"capacity", due.capacity ? JsonText(*due.capacity) : JsonText::null()},
                {"per_day", JsonText::of(due.perDay)},
                {"earliest", KioskSummary::momentText(due.earliest)},
                {"latest", KioskSummary::momentText(due.latest)},
                {"cannot_say",
                 due.cannotSay.isEmpty() ? JsonText::null() : JsonText(due.cannotSay)}})
        + '\n';
}

} // namespace

int fleetHistoryCommand(const Arguments& arguments)
{
    const Period period(arguments);
    const QString kiosk = arguments.operands().constFirst();
    const History history = openHistory(arguments, "velmo fleet history");
    std::vector<Event> events = eventsOf(history, kiosk);
    if (events.empty())
        throw Fault{Velmo::tr("\"%1\": the history knows no such kiosk").arg(kiosk)};
    events.erase(std::remove_if(events.begin(), events.end(),
                                [&](const Event& event) {
                                    return !period.overlaps(event.began,
                                                            event.ended.value_or(now()));
                                }),
                 events.end());
    if (!arguments.isSet(options::json)) {
        print(events.empty()
                  ? Velmo::tr("The history tells of nothing in that time.") + QLatin1Char('\n')
                  : eventsText(events));
    } else {
        QByteArray lines;
        for (const Event& event : events)
            lines += event.json + '\n';
        print(QString::fromUtf8(lines));
    }
    const bool isOver = std::all_of(events.begin(), events.end(),
                                    [](const Event& event) { return event.ended.has_value(); });
    return isOver ? exitSuccess : codeOf(history);
}

int tellAvailability(const Arguments& arguments, const FleetSelection& selection)
{
    struct Row
    {
        QString kiosk;
        History::Availability of;
        double share() const { return of.known > 0 ? double(of.inService) / double(of.known) : 2; }
    };
    const QDate month = monthOf(arguments);
    const qint64 whole = std::min(now(), month.addMonths(1).startOfDay().toMSecsSinceEpoch())
        - month.startOfDay().toMSecsSinceEpoch();
    const History history = openHistory(arguments, "--availability");
    const auto known = history.availability(month, now());
    std::vector<Row> rows;
    History::Availability all{};
    for (auto kiosk = known.begin(); kiosk != known.end(); ++kiosk) {
        if (!selection.hasName(kiosk.key()))
            continue;
        rows.push_back({kiosk.key(), *kiosk});
        all += *kiosk;
    }
    if (rows.empty())
        requireKiosk(history, selection);
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return a.share() != b.share() ? a.share() < b.share() : isNaturallyLess(a.kiosk, b.kiosk);
    });
    const qint64 wholeOfAll = whole * qint64(rows.size());
    if (arguments.isSet(options::json)) {
        QByteArray lines;
        const auto add = [&](const JsonText& name, const History::Availability& of, qint64 time) {
            lines += JsonText::object({{"kind", QStringLiteral("availability")},
                                       {"kiosk", name},
                                       {"month", month.toString(QStringLiteral("yyyy-MM"))},
                                       {"seconds", time / 1000},
                                       {"known_seconds", of.known / 1000},
                                       {"in_service_seconds", of.inService / 1000},
                                       {"silent_seconds", of.silent / 1000}})
                + '\n';
        };
        for (const Row& row : rows)
            add(row.kiosk, row.of, whole);
        add(JsonText::null(), all, wholeOfAll);
        print(QString::fromUtf8(lines));
        return codeOf(history);
    }
    if (rows.empty()) {
        print(Velmo::tr("The history knows nothing of %1.")
                  .arg(month.toString(QStringLiteral("yyyy-MM")))
              + QLatin1Char('\n'));
        return codeOf(history);
    }
    QList<QStringList> cells;
    const auto add = [&](const QString& name, const History::Availability& of, qint64 time) {
        cells += QStringList{printable(name), percentText(of.inService, of.known),
                             percentText(of.silent, of.known), percentText(time - of.known, time)};
    };
    for (const Row& row : rows)
        add(row.kiosk, row.of, whole);
    add(Velmo::tr("all together"), all, wholeOfAll);
    const QString right(QLatin1Char('>'));
    print(formatTable({Velmo::tr("Kiosk"), right + Velmo::tr("In service, %"),
                       right + Velmo::tr("Silent, %"), right + Velmo::tr("Not known, %")},
                      cells)
          + QLatin1Char('\n')
          + wrapped(Velmo::tr("%1: shares of the time for which the condition is known; not known: "
                              "share of the month up to now.")
                            .arg(month.toString(QStringLiteral("yyyy-MM")))
                        + QLatin1Char(' ')
                        + Velmo::tr("While no worker ran or had a connection, kiosks count as in "
                                    "the condition before."),
                    0, outputWidth()));
    return codeOf(history);
}

int tellDue(const Arguments& arguments, const FleetSelection& selection)
{
    const qint64 limit = now() + spanOf(arguments);
    const bool isJson = arguments.isSet(options::json);
    const bool hasAll = arguments.isSet(options::allFaults);
    QByteArray lines;
    QList<QStringList> due;
    QList<QStringList> unknown;
    int later = 0;
    int unsaid = 0;
    const History history = openHistory(arguments, "--due");
    std::vector<History::Due> all = history.due(now());
    std::stable_sort(all.begin(), all.end(), [](const History::Due& a, const History::Due& b) {
        const qint64 never = std::numeric_limits<qint64>::max();
        const qint64 first = a.earliest.value_or(never);
        const qint64 other = b.earliest.value_or(never);
        return first != other ? first < other : isNaturallyLess(a.kiosk, b.kiosk);
    });
    for (const History::Due& each : all) {
        if (!selection.hasName(each.kiosk))
            continue;
        const bool isSaid = each.cannotSay.isEmpty();
        const bool isDue = isSaid && each.earliest && *each.earliest <= limit;
        unsaid += isSaid ? 0 : 1;
        later += isSaid && !isDue ? 1 : 0;
        if (!isDue && (isSaid || !hasAll))
            continue;
        lines += dueJson(each);
        if (isDue) {
            due += QStringList{printable(each.kiosk), whenText(each.earliest),
                               whenText(each.latest), printable(dueText(each))};
        } else {
            unknown +=
                QStringList{printable(each.kiosk),
                            printable(placeText(each) + QStringLiteral(": ") + each.cannotSay)};
        }
    }
    const int found = int(due.size());
    if (found + later + unsaid == 0)
        requireKiosk(history, selection);
    if (isJson) {
        print(QString::fromUtf8(lines
                                + JsonText::object({{"kind", QStringLiteral("summary")},
                                                    {"due", found},
                                                    {"later", later},
                                                    {"cannot_say", unsaid}})
                                + '\n'));
    } else {
        QString text;
        if (!due.isEmpty()) {
            text += formatTable({Velmo::tr("Kiosk"), Velmo::tr("Not before"), Velmo::tr("By"),
                                 Velmo::tr("What")},
                                due, outputWidth())
                + QLatin1Char('\n');
        }
        if (!unknown.isEmpty()) {
            text += formatTable({Velmo::tr("Kiosk"), Velmo::tr("What cannot be said, and why")},
                                unknown, outputWidth())
                + QLatin1Char('\n');
        }
        print(text
              + Velmo::tr("due: %1, later: %2, cannot say: %3").arg(found).arg(later).arg(unsaid)
              + QLatin1Char('\n'));
    }
    return codeOf(history,
                  found > 0 && arguments.isSet(options::exitCode) ? exitFindings : exitSuccess);
}
