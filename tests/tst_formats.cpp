// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "abstractfilter.h"
#include "acceptorsettings.h"
#include "dispenserregistrymodel.h"
#include "droutemapitem.h"
#include "filterchain.h"
#include "filtersfile.h"
#include "log/cashcount.h"
#include "service/kiosksummary.h"
#include "service/serviceanswer.h"
#include "settings/arrayfile.h"
#include "statitem.h"
#include "text/filterwords.h"
#include "velmorun.h"

#include <QBuffer>

namespace {

AcceptorSettings settings;
const auto json = [](const QString& s) { return QJsonDocument::fromJson(s.toUtf8()).toVariant(); };
const auto text = [](const QVariant& v) {
    return QString::fromUtf8(QJsonDocument::fromVariant(v).toJson());
};

template <typename Record>
QVariantMap written(const QVariant& example)
{
    Record record;
    return record.fromMap(example.toMap()) ? record.toMap() : QVariantMap();
}

QVariantList writtenFilters(const QVariant& example)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(text(example).toUtf8());
    buffer->open(QIODevice::ReadOnly);
    TextInput input(std::move(buffer), {});
    FilterChain chain;
    QVariantList written;
    const auto filters = filterSetOf(ArrayFile(input, {}), ListKind::Filters).addTo(chain);
    for (const AbstractFilter* filter : filters) {
        written += QVariantMap{{"name"_s, filterName(*filter)},
                               {"params"_s, filterParams(*filter).toVariantMap()}};
    }
    return written;
}

// The names that a report has for the devices.
QVariantMap reportedNames(const QVariant& example)
{
    QVariantList devices;
    const QStringList ids = example.toMap().keys();
    for (const QString& id : ids)
        devices += QVariantMap{{"device_id"_s, id}};
    QTemporaryDir folder;
    const QString names = writeFile(folder.filePath("names.json"_s), text(example));
    const VelmoRun run =
        velmo({"report"_s, "-"_s, "--names"_s, names},
              text(QVariantMap{{"device_states"_s, devices}}).simplified().toUtf8());
    const QRegularExpression device("DeviceId: (\\d+),.*\nName: (.*)\n"_s);
    QVariantMap reported;
    for (auto found = device.globalMatch(run.out); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        reported.insert(match.captured(1), match.captured(2));
    }
    return reported;
}

// What is reported of the state from which the example was made.
QVariant serviceReport(const QVariant& /*example*/)
{
    return json(velmo({"report"_s, "-"_s, "--json"_s},
                      R"({"time":"2026-11-24T10:05:12Z","device_states":[{"device_id":1,)"
                      R"("thread_id":2,"enabled":true,"state":"idling","stacker_full":true,)"
                      R"("notes_inserted":7,"notes_rejected":1,"dispenser_registry":[)"
                      R"({"bill_type":1,"channel":2,"count":5,"currency":643,)"
                      R"("denomination":100,"rejected":0}]}]})")
                    .out);
}

// The counts that a file has.
QVariantList writtenCounts(const QByteArray& file)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(file);
    buffer->open(QIODevice::ReadOnly);
    TextInput input(std::move(buffer), {});
    QVariantList written;
    for (const CashCount& count : readCashCounts(input)) {
        QVariantMap map{{"device"_s, count.device},
                        {"place"_s, placeKey(count.place)},
                        {"denomination"_s, count.denomination},
                        {"count"_s, count.count}};
        if (count.channel)
            map.insert("channel"_s, *count.channel);
        if (!count.currency.isEmpty())
            map.insert("currency"_s, count.currency);
        written += map;
    }
    return written;
}

// What the tool prints of a log in which a note was not credited and two got stuck.
QString ledger(const QStringList& options)
{
    return velmo(
               QStringList{"cash"_s, "-"_s} + options,
               R"({"session":"start","device_id":7,"thread_id":2,"state":"idling","stacker_present":false,"session_sum":0,)"
               R"("dispenser_registry":[{"bill_type":0,"channel":1,"count":12,"currency":"RUB","denomination":100,)"
               R"("device_id":7,"rejected":0,"thread_id":2}],"time":"2026-11-24T10:00:00Z"}
                    {"stacker_present":true,"time":"2026-11-24T10:01:00Z"}
                    {"state":"accepting","current_note":500,"time":"2026-11-24T10:05:12Z"}
                    {"state":"stacked"}
                    {"state":"idling","current_note":0}
                    {"state":"accepting","current_note":1000}
                    {"state":"jammed"}
                    {"state":"idling","current_note":0}
                    {"state":"accepting","current_note":1000}
                    {"state":"jammed","time":"2026-11-24T10:06:00Z"})")
        .out;
}

// The lines of JSON that the tool printed.
QVariantList jsonLines(const QString& out)
{
    QVariantList lines;
    for (const QString& line : out.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        lines += json(line);
    return lines;
}

// What the tool prints of a log in which notes were fished.
QVariantList fishedLog(const QStringList& command)
{
    QTemporaryDir folder;
    const QString filters =
        writeFile(folder.filePath("f.json"_s),
                  R"([{"name":"AttemptsFilter","params":{"denom":1000,"attempts":2}}])"_s);
    const VelmoRun run =
        velmo(command + QStringList{"-"_s, "--json"_s, "--filters"_s, filters},
              R"({"session":"start","device_id":1,"thread_id":1,"enabled":true,"state":"idling"}
                 {"state":"rejected"}
                 {"state":"idling"}
                 {"state":"rejected"}
                 {"state":"accepting","current_note":1000,"stacker_full":true,"time":"2026-11-24T10:05:30Z"})");
    return jsonLines(run.out);
}

QString page()
{
    QFile file(QStringLiteral(FORMATS));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What stands on the page as a table for a spreadsheet: the ledger's with what is counted of it,
// and one of what was counted.
QStringList csvExamples()
{
    QStringList found;
    const QRegularExpression block("```csv\n([^`]*)```"_s);
    for (auto example = block.globalMatch(page()); example.hasNext();)
        found += example.next().captured(1);
    return found;
}

QString countedTable()
{
    return csvExamples().value(1);
}

// Reads an example with the class that reads its format and writes it again.
const QMap<QString, std::function<QVariant(const QVariant& example)>> checks{
    {"note record"_s, written<NoteItem>},
    {"device-and-thread record"_s, written<DevAndThreadItem>},
    {"dispenser registry row"_s, written<DispenserRegistryItem>},
    {"dispenser registry"_s, written<DispenserRegistryModel>},
    {"route map row"_s, written<DRouteMapItem>},
    {"route map text"_s,
     [](auto& v) { return json(DRouteMap::toJson(DRouteMap::fromJson(text(v)))); }},
    {"statistics record"_s, written<StatItem>},
    {"catalogue row"_s,
     [](auto& v) { return Acceptors::search(Acceptors::Supported(v.toMap()["id"_s].toInt())); }},
    {"settings list"_s, [](auto& v) { return settings.setList(v.toList()), settings.toList(); }},
    {"formatted settings map"_s,
     [](auto& v) { return settings.setFotmattedMap(v.toMap()), settings.toFormattedMap(); }},
    {"attempts_filter_settings"_s,
     [](auto& v) {
         settings.updateValue("acceptor_common"_s, {}, "attempts_filter_settings"_s, text(v));
         return json(settings.toList().at(3).toMap()["value"_s].toString());
     }},
    {"port parameters"_s,
     [](auto& v) {
         const AcceptorInfo info{{}, -1, 0, {}, v.toMap()["portname"_s].toString(), {}, v.toMap()};
         return AcceptorDeviceSettings(info).toAcceptorInfo().portSettings;
     }},
    {"device state"_s, written<DeviceState>},
    {"device state text"_s,
     [](auto& v) {
         DeviceState state;
         return state.parse(text(v)), json(state.serialize());
     }},
    {"service state"_s,
     [](auto& v) {
         const QVariant device = v.toMap()["device_states"_s].toList().value(0);
         QVariantMap map = written<DeviceState>(device);
         map.insert(written<DispenserRegistryModel>(device));
         map.insert(written<StatItem>(device));
         return QVariantMap{{"device_states"_s, QVariantList{map}}};
     }},
    {"refusals"_s,
     [](auto& v) {
         return QVariantMap{{"device_states"_s, QVariantList()},
                            {"refusals"_s, readServiceState(text(v)).refusals}};
     }},
    {"money"_s,
     [](auto& v) {
         const PublishedState state = readServiceState(text(v));
         const PublishedMoney& money = state.money;
         const Incident incident = state.incidents.value_or(std::vector<Incident>()).at(0);
         const QVariantMap row{{"number"_s, incident.number},
                               {"device_id"_s, incident.device},
                               {"thread_id"_s, incident.thread},
                               {"denomination"_s, incident.denomination},
                               {"currency"_s, incident.currency},
                               {"time"_s, incident.time.toString(Qt::ISODateWithMs)},
                               {"settled"_s, false}};
         return QVariantMap{{"device_states"_s, QVariantList()},
                            {"money"_s,
                             QVariantMap{{"currency"_s, money.currency},
                                         {"digits"_s, money.digits},
                                         {"recorded"_s, money.recorded.value_or(0)},
                                         {"change"_s, money.change}}},
                            {"incidents"_s, QVariantList{row}}};
     }},
    {"field description"_s, written<FieldDescription>},
    {"filters file"_s, writtenFilters},
    {"explained log"_s,
     [](auto& /*v*/) {
         return fishedLog({"explain"_s, "--refusals"_s});
     }},
    {"overview of a log"_s,
     [](auto& /*v*/) {
         QVariantList lines = fishedLog({"explain"_s});
         while (lines.value(0).toMap()["kind"_s] == "note"_s)
             lines.removeFirst();
         return lines;
     }},
    {"contradiction"_s,
     [](auto& /*v*/) {
         QFile log(sample("credited-nothing.jsonl"_s));
         log.open(QIODevice::ReadOnly);
         QTemporaryDir folder;
         const QString filters = writeFile(folder.filePath("f.json"_s), "[]"_s);
         return jsonLines(velmo({"explain"_s, "-"_s, "--filters"_s, filters, "--json"_s,
                                 "--contradictions"_s},
                                log.readAll())
                              .out)
             .value(0);
     }},
    {"ledger"_s,
     [](auto& /*v*/) {
         QTemporaryDir folder;
         return jsonLines(ledger(
             {"--json"_s, "--counted"_s, writeFile(folder.filePath("c.csv"_s), countedTable())}));
     }},
    {"counted cash"_s, [](auto& v) { return writtenCounts(text(v).toUtf8()); }},
    {"replayed log"_s, [](auto& /*v*/) { return fishedLog({"replay"_s}).last(); }},
    {"names file"_s, reportedNames},
    {"service report"_s, serviceReport},
};

// The models and interfaces that a setting is not written for leave the others.
QString writtenFor(const SettingDescription& d)
{
    QStringList ids;
    const auto devices = Acceptors::supportedDevices();
    for (const SupportedDevice& device : devices) {
        const int id = device["id"_s].toInt();
        if (d.appliesTo(id, "rs232"_s) || d.appliesTo(id, "tcp"_s))
            ids += QString::number(id);
    }
    if (ids.size() < devices.size())
        return "model "_s + ids.join(", "_s);
    if (!d.appliesTo(1, "rs232"_s))
        return "TCP"_s;
    return d.appliesTo(1, "tcp"_s) ? QString() : "serial port"_s;
}

// A row of the page's table of settings.
QString settingRow(const SettingDescription& d)
{
    static const QMap<SettingDescription::Kind, QString> kinds{
        {SettingDescription::Number, "number"_s},
        {SettingDescription::Switch, "switch"_s},
        {SettingDescription::Text, "text"_s},
        {SettingDescription::Choice, "choice"_s},
        {SettingDescription::AttemptsLimits, "limits"_s},
        {SettingDescription::RouteMap, "route map"_s}};
    const QString range = d.kind() == SettingDescription::Number
        ? "%1 to %2"_s.arg(d.minimum().toString(), d.maximum().toString())
        : d.choices().join(", "_s);
    const QVariant defaultValue = d.defaultValue();
    const QString shown =
        defaultValue.toString().isEmpty() ? "empty"_s : "`%1`"_s.arg(defaultValue.toString());
    return "| `%1` | %2 | %3 | %4 | %5 | %6 |"_s.arg(d.path(), kinds.value(d.kind()), range,
                                                     defaultValue.isValid() ? shown : QString(),
                                                     writtenFor(d), d.help());
}

} // namespace

class tst_Formats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void examplesReadBack()
    {
        const QRegularExpression block("(?:<!-- example: (.*) -->\n+)?```json\n([^`]*)```"_s);
        auto unused = checks;
        for (auto found = block.globalMatch(page()); found.hasNext();) {
            const QRegularExpressionMatch example = found.next();
            const auto check = unused.take(example.captured(1));
            QVERIFY2(check, qPrintable(example.captured(1)));
            const QVariant value = json(example.captured(2));
            QCOMPARE(text(check(value)), text(value));
        }
        QCOMPARE(QStringList(unused.keys()), QStringList());
        settings.setList({});
    }

    void tablesAreRead()
    {
        const QString example = page().section("<!-- example: counted cash -->\n```json\n"_s, 1);
        QCOMPARE(writtenCounts(countedTable().toUtf8()),
                 json(example.section("```"_s, 0, 0)).toList());
        QTemporaryDir folder;
        const QString counts = writeFile(folder.filePath("c.csv"_s), countedTable());
        const QStringList parts = csvExamples().value(0).split("\n\n"_s);
        QCOMPARE(parts.size(), 2);
        for (const bool isCounted : {false, true}) {
            const QString out =
                ledger(QStringList{"--csv"_s}
                       + (isCounted ? QStringList{"--counted"_s, counts} : QStringList()));
            const QStringList rows = out.split(QLatin1Char('\n'));
            const QStringList expected =
                parts.at(isCounted ? 1 : 0).trimmed().split(QLatin1Char('\n'));
            QCOMPARE(expected.at(0), rows.at(0));
            QVERIFY2(rows.contains(expected.at(1)), qPrintable(out));
        }
    }

    void everyRuleIsDescribed()
    {
        const QString table = page().section("\n| Rule | Told when"_s, 1).section("\n\n"_s, 0, 0);
        QStringList told;
        const QRegularExpression row("\n\\| `(\\w+)` \\|"_s);
        for (auto found = row.globalMatch(table); found.hasNext();)
            told += found.next().captured(1);
        QStringList rules;
        for (int i = 0; i < ruleCount; ++i)
            rules += Contradiction::keyOf(Rule(i));
        QCOMPARE(told, rules);
    }

    // The commands of the front page that show what they print.
    void frontPageShowsWhatIsPrinted()
    {
        QFile file(sample("../README.md"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString frontPage = QString::fromUtf8(file.readAll());
        const QRegularExpression block(
            "    \\$ velmo ([^\n]*)\n\n((?:    [^\n]*\n|\n(?=    ))+)"_s);
        int number = 0;
        for (auto found = block.globalMatch(frontPage); found.hasNext(); ++number) {
            const QRegularExpressionMatch example = found.next();
            QStringList words = example.captured(1).split(QLatin1Char(' '));
            words.replaceInStrings(QRegularExpression("^samples/"_s), SAMPLES "/"_s);
            const QString shown = example.captured(2).simplified();
            const VelmoRun run = velmo(words);
            QVERIFY2(run.out.simplified().contains(shown), qPrintable(run.out + run.err));
        }
        QCOMPARE(number, 2);
    }

    void summaryOfAKioskReadsBack()
    {
        const PublishedState state = readServiceState(
            R"({"time":1234,"device_states":[{"device_id":1,"notes_inserted":5000000000},)"
            R"({"device_id":2,"notes_inserted":7,"notes_rejected":-1,"notes_returned":1e19}]})"_s);
        StateWriter writer;
        const KioskSummary written("kiosk"_s, state, writer);
        for (const KioskSummary& summary : {written, KioskSummary(written.text)}) {
            QCOMPARE(summary.time, 1234LL);
            QCOMPARE(summary.inserted, 5000000007LL);
            QCOMPARE(summary.rejected, -1LL);
            QCOMPARE(summary.returned, std::numeric_limits<qint64>::max());
        }
    }

    void everySettingIsDescribed()
    {
        QStringList rows;
        for (const SettingDescription& d : AcceptorSettings::settingDescriptions())
            rows += settingRow(d);
        const QString section = page().section("## Every setting\n"_s, 1).section("\n## "_s, 0, 0);
        QCOMPARE(section.split(QLatin1Char('\n')).filter(QRegularExpression("^\\| `"_s)), rows);
    }
};

QTEST_GUILESS_MAIN(tst_Formats)
#include "tst_formats.moc"
