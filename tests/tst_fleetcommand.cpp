// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleettable.h"
#include "fleetworkers.h"
#include "historyrecorder.h"
#include "velmorun.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr qint64 hour = 3600 * 1000;

QByteArray summary(const QString& condition, const QStringList& reasons)
{
    QStringList faults;
    QStringList causes;
    for (const QString& reason : reasons) {
        faults += "\"It is %1 \\\",\\\"condition\\\":\\\"fine\""_s.arg(reason);
        causes += R"({"device":7,"thread":2,"reason":"%1"})"_s.arg(reason);
    }
    return R"({"kiosk":"x","time":"2026-11-26T12:00:00.000Z","payment_text":"","devices":[{"a":[]}],)"
           R"("condition":"%1","faults":[%2],"causes":[%3]})"_s
               .arg(condition, faults.join(QLatin1Char(',')), causes.join(QLatin1Char(',')))
               .toUtf8();
}

QByteArray status(int part, int parts, int kiosks, const QString& rest = R"("ready":true)"_s)
{
    return R"({"worker":"w","part":%1,"parts":%2,"kiosks":%3,%4})"_s.arg(part)
        .arg(parts)
        .arg(kiosks)
        .arg(rest)
        .toUtf8();
}

Fleet fleet()
{
    Fleet fleet;
    fleet.take("msk-k10"_s, summary("faulty"_s, {"stacker_full"_s, "offline"_s}));
    fleet.take("msk-k2"_s, summary("faulty"_s, {"stacker_full"_s}));
    fleet.take("kzn/k1"_s, summary("silent"_s, {"silent"_s}));
    fleet.take("k1"_s, summary("fine"_s, {}));
    fleet.take("k9"_s, summary("fine"_s, {}));
    fleet.take("k9"_s, {});
    fleet.take("bad"_s, "{}");
    return fleet;
}

// What velmo fleet is called with, for whoever asks for options.
class Given : public GivenOptions
{
public:
    explicit Given(const QStringList& arguments)
        : GivenOptions(m_parser)
    {
        for (const Option* const option :
             {&options::kiosk, &options::condition, &options::reason, &options::region})
            m_parser.addOption(option->forParser());
        m_parser.parse(QStringList{"velmo"_s} + arguments);
    }

private:
    QCommandLineParser m_parser;
};

} // namespace

class tst_FleetCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreInTheOrderThatPeopleCountIn()
    {
        const QStringList ordered{{},
                                  "k"_s,
                                  "k1-2"_s,
                                  "k1-10"_s,
                                  "k02"_s,
                                  "k2"_s,
                                  "k2a"_s,
                                  "k10"_s,
                                  "k10/1"_s,
                                  "k99999999999999999998"_s,
                                  "k99999999999999999999"_s,
                                  "m1"_s};
        for (int i = 0; i < ordered.size(); ++i) {
            for (int j = 0; j < ordered.size(); ++j)
                QCOMPARE(isNaturallyLess(ordered[i], ordered[j]), i < j);
        }
    }

    void kiosksAreSelected_data()
    {
        // Options, those that are listed, worst first.
        addRows(R"(
                                         | bad kzn/k1 msk-k2 msk-k10
            --kiosk k*                   | kzn/k1
            --kiosk ???-k? --kiosk bad   | bad msk-k2
            --kiosk [a-z]*               |
            --condition fine             | k1
            --condition fine --condition silent | kzn/k1 k1
            --reason stacker_full        | msk-k2 msk-k10
            --reason offline --reason unreadable | bad msk-k10
            --region kzn --region bad    | kzn/k1
            --region msk --kiosk *10     | msk-k10)"_s);
    }

    void kiosksAreSelected()
    {
        const auto [arguments, expected] = cells<2>();
        const Given given(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QStringList listed;
        for (const FleetKiosk& kiosk : FleetSelection(given).listed(fleet()))
            listed += kiosk.name;
        QCOMPARE(listed.join(QLatin1Char(' ')), expected);
    }

    void summariesAreReadWithoutTheirDevices()
    {
        const Fleet read = fleet();
        const FleetKiosk kiosk = read.kiosks().value("msk-k10"_s);
        QCOMPARE(kiosk.condition, KioskSummary::Faulty);
        QCOMPARE(kiosk.faults.size(), size_t(2));
        QCOMPARE(kiosk.faults[0].text, R"(It is offline ","condition":"fine)"_s); // the worst
        QCOMPARE(kiosk.time, 1795694400000);
        QCOMPARE(read.counts(), (ConditionCounts{1, 1, 0, 2, 1}));
        QCOMPARE(read.unreadable(), 1);
    }

    void workersTellWhatMayBeWrong_data()
    {
        // Statuses, how many summaries there are, whether they are all, what is told.
        addRows(R"(
                                                    | 5 | no  | No worker tells of itself at "s":
            1/1 5 "ready":true                      | 5 | yes |
            1/1 5 "ready":true                      | 6 | yes |
            1/1 5 "ready":true; 1/1 7 "ready":false | 6 | no  | 1 kiosks are missing
            1/2 5 "ready":true                      | 9 | no  | No worker has part 2/2
            1/2 5 "ready":true; 2/2 4 "gone":true   | 9 | no  | No worker has part 2/2
            1/2 5 "ready":true; 2/2 4 "ready":true  | 8 | no  | 1 kiosks are missing
            1/2 5 "ready":true; 2/2 4 "ready":false | 9 | no  | The worker of part 2/2 is not ready
            1/2 5 "gone":true; 1/1 9 "ready":true   | 9 | yes |
            1/1 9 "ready":true; 1/3 2 "ready":true  | 9 | yes |
            1/1 9 "ready":true,"faults":["x"]       | 9 | yes | Worker w: x
            3/2 9 "ready":true; 1/1 9 "ready":true  | 9 | yes | 0: what the worker tells of itself cannot)"_s);
    }

    void workersTellWhatMayBeWrong()
    {
        const auto [statuses, summaries, areAll, fault] = cells<4>();
        FleetWorkers workers;
        workers.take("ended"_s, status(1, 9, 9));
        workers.take("ended"_s, {});
        const QStringList all = statuses.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (int i = 0; i < all.size(); ++i) {
            const QStringList words = all[i].trimmed().split(QLatin1Char(' '));
            const QStringList part = words[0].split(QLatin1Char('/'));
            workers.take(QString::number(i),
                         status(part[0].toInt(), part[1].toInt(), words[1].toInt(), words[2]));
        }
        QCOMPARE(workers.areAll(summaries.toInt()), areAll == "yes"_s);
        const QString told = workers.faults(summaries.toInt(), "s"_s).join(QLatin1Char('\n'));
        QVERIFY2(fault.isEmpty() ? told.isEmpty() : told.startsWith(fault), qPrintable(told));
    }

    void historyIsTold()
    {
        const QString place = m_folder.filePath("history.sqlite"_s);
        const qint64 now = QDateTime::currentMSecsSinceEpoch() / 1000 * 1000;
        auto recorder = std::make_unique<HistoryRecorder>(place, "1/1"_s, "w"_s);
        recorder->record({"k1"_s, now - 6 * hour, 1, KioskSummary::Fine, {}, {}});
        recorder->record({"k1"_s,
                          now - 4 * hour,
                          2,
                          KioskSummary::OutOfOrder,
                          {{7, 2, "offline"_s, "It is \033 offline."_s}},
                          {}});
        recorder->record({"k2"_s, now - hour, 3, KioskSummary::Fine, {}, {}});
        QTRY_VERIFY(recorder->status().written > 0 && recorder->status().waiting == 0);
        const QStringList history{"--history"_s, place};
        const VelmoRun told = velmo(QStringList{"fleet"_s, "history"_s, "k1"_s} + history);
        QCOMPARE(told.err, QString());
        const QStringList lines = told.outLines();
        QCOMPARE(lines.size(), 4);
        QVERIFY2(lines[1].contains("2 hours"_s) && lines[1].endsWith("fine"_s),
                 qPrintable(told.out));
        QVERIFY2(lines[3].contains("still"_s) && lines[3].endsWith(R"(It is \u001b offline.)"_s),
                 qPrintable(told.out));
        const QString late =
            QDateTime::fromMSecsSinceEpoch(now - 3 * hour).toUTC().toString(Qt::ISODate);
        const VelmoRun json = velmo(
            QStringList{"fleet"_s, "history"_s, "k1"_s, "--json"_s, "--from"_s, late} + history);
        QCOMPARE(json.outLines().size(), 2);
        const QJsonDocument fault = QJsonDocument::fromJson(json.outLines()[1].toUtf8());
        QCOMPARE(fault["reason"_s].toString(), "offline"_s);
        QVERIFY(fault["ended"_s].isNull());
        const VelmoRun nobody = velmo(QStringList{"fleet"_s, "history"_s, "k3"_s} + history);
        QCOMPARE(nobody.err, "velmo: \"k3\": the history knows no such kiosk\n"_s);
        QCOMPARE(nobody.exitCode, 2);

        const VelmoRun due =
            velmo(QStringList{"fleet"_s, "--due"_s, "2w"_s, "--exit-code"_s} + history);
        QCOMPARE(due.out, "due: 0, later: 0, cannot say: 0\n"_s);
        QCOMPARE(due.exitCode, 0);

        // A silence is noticed after it began, which the summary tells.
        FleetKiosk kiosk{"k1"_s, KioskSummary::OutOfOrder, now, now - 5 * hour, {}, true};
        QCOMPARE(FleetMemory(place).since(kiosk)->began, now - 5 * hour);
        kiosk.since = now - hour;
        QCOMPARE(FleetMemory(place).since(kiosk)->began, now - 4 * hour);

        for (const QString& question : {"--due=2w"_s, "--availability"_s}) {
            const VelmoRun mistyped =
                velmo(QStringList{"fleet"_s, question, "--kiosk"_s, "k3"_s} + history);
            QCOMPARE(mistyped.err, "velmo: no kiosk has such a name and region\n"_s);
            QCOMPARE(mistyped.exitCode, 2);
        }

        recorder.reset(); // what is told may be of long ago
        const QList<QStringList> questions{{"fleet"_s, "history"_s, "k1"_s},
                                           {"fleet"_s, "--due"_s, "2w"_s},
                                           {"fleet"_s, "--availability"_s}};
        for (const QStringList& question : questions) {
            const VelmoRun old = velmo(question + history);
            QVERIFY2(old.err.contains("No worker writes to the history"_s) && !old.out.isEmpty(),
                     qPrintable(old.err));
            QCOMPARE(old.exitCode, 2);
        }
    }

    void availabilityIsToldWorstFirst()
    {
        const QString place = m_folder.filePath("availability.sqlite"_s);
        const QDate month = QDate::currentDate().addMonths(-1);
        const QDateTime first(QDate(month.year(), month.month(), 1).startOfDay());
        const qint64 start = first.toMSecsSinceEpoch();
        HistoryRecorder recorder(place, "1/1"_s, "w"_s);
        recorder.record({"k10"_s, start - hour, 1, KioskSummary::Fine, {}, {}});
        recorder.record({"k2"_s, start - hour, 2, KioskSummary::OutOfOrder, {}, {}});
        recorder.record({"k2"_s, start + hour, 3, KioskSummary::Faulty, {}, {}});
        QTRY_VERIFY(recorder.status().written > 0 && recorder.status().waiting == 0);
        const VelmoRun run = velmo(
            {"fleet"_s, "--availability"_s, first.toString("yyyy-MM"_s), "--history"_s, place});
        QCOMPARE(run.err, QString());
        const QStringList lines = run.outLines();
        QVERIFY2(lines[1].startsWith("k2 "_s) && lines[2].startsWith("k10 "_s),
                 qPrintable(run.out));
        QVERIFY2(lines[1].contains("99.8"_s) && lines[2].contains("100.00"_s), qPrintable(run.out));
        QVERIFY2(lines[3].startsWith("all together"_s) && lines[3].contains("99.9"_s),
                 qPrintable(run.out));
    }

    void actionsStandBesideTheCommand()
    {
        const QString help = velmo({"help"_s, "fleet"_s}).out;
        QVERIFY2(help.startsWith("Usage: velmo fleet [MONTH]"_s)
                     && help.contains("\n  fleet forget "_s),
                 qPrintable(help));
        QVERIFY(velmo({"help"_s, "fleet"_s, "forget"_s})
                    .out.startsWith("Usage: velmo fleet forget KIOSK..."_s));
        QCOMPARE(velmo({"complete"_s, "--"_s, "fleet"_s, "h"_s}).out, "history\n"_s);
        QCOMPARE(velmo({"complete"_s, "--"_s, "fleet"_s, "--reason"_s, "stacker_f"_s}).out,
                 "stacker_full\n"_s);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_FleetCommand)
#include "tst_fleetcommand.moc"
